#include "Progress.h"

#include "Console.h"
#include "Interruption.h"

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int BarWidth = 40;

} // namespace

Progress::Progress(Console& console, QString label)
    : m_console(console)
    , m_label(std::move(label)) {}

Progress::~Progress() {
    if (m_percent < 0)
        return;
    const qsizetype width = m_label.size() + BarWidth + 8;
    m_console.errors << '\r' << std::string(width, ' ') << '\r' << std::flush;
}

void Progress::advance(double fraction) {
    checkInterrupt();
    const int percent = static_cast<int>(fraction * 100);
    if (!m_console.isTerminal || percent == m_percent)
        return;
    m_percent = percent;
    const int filled = percent * BarWidth / 100;
    const QString bar = u"#"_s.repeated(filled) + u"."_s.repeated(BarWidth - filled);
    const QString line = u"\r%1 [%2] %3 %"_s.arg(m_label, bar).arg(percent, 3);
    m_console.errors << line.toLocal8Bit().constData() << std::flush;
}
