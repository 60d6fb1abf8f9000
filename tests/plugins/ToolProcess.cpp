#include "plugins/ToolProcess.h"

#include <QProcess>
#include <gtest/gtest.h>

ToolRun startTool(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(LUMENVIA_PLUGINS), arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {
        process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
        QString::fromLocal8Bit(process.readAllStandardError())};
}
