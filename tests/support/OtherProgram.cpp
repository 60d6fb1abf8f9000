#include "support/OtherProgram.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 120000; // milliseconds; only a test that fails waits so long

}

OtherProgram::OtherProgram(const QString& program, const QStringList& arguments) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QDir(QCoreApplication::applicationDirPath()).filePath(program), arguments);
    m_process.waitForStarted(Patience);
}

OtherProgram::~OtherProgram() {
    kill();
}

QString OtherProgram::readLine() {
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(Patience))
            return {};
    }
    m_lines += QString::fromUtf8(m_process.readLine()).chopped(1);
    return m_lines.last();
}

bool OtherProgram::endsWell() {
    m_process.closeWriteChannel();
    return m_process.waitForFinished(Patience) && m_process.exitStatus() == QProcess::NormalExit
           && m_process.exitCode() == 0;
}

QStringList OtherProgram::kill() {
    m_process.kill();
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(Patience);
    while (m_process.canReadLine())
        readLine();
    return m_lines;
}
