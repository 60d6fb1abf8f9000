#include "Importing.h"

#include "DataFolder.h"
#include "Interruption.h"
#include "basic/Error.h"
#include "desktop/HostPath.h"
#include "makers/TranslationMaker.h"
#include "readers/OpenSource.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// A path as the host writes it is taken as it is.
QString sourcePath(const QString& source) {
    return QFileInfo::exists(source) ? source : hostPath(source);
}

} // namespace

bool importText(const ImportOrder& order, Console& console) {
    try {
        const auto open = [&order]() -> std::unique_ptr<Maker> {
            return std::make_unique<TranslationMaker>(openVerseSource(sourcePath(order.source)));
        };
        makeAndTell(order.file, orderFor(madeFolder(order.folder), order.file), open, console);
        return true;
    } catch (const Interrupted&) {
        writeLine(console.errors, StoppedByUser);
    } catch (const Error& error) {
        writeLine(console.errors, u"%1 was not made: %2"_s.arg(order.file, error.text()));
    }
    return false;
}
