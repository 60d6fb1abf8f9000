// A fresh folder of modules and a fresh folder of data files, and the tool run on them.
#pragma once

#include "plugins/DataFiles.h"
#include "plugins/ToolRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

class WorkFixture : public testing::Test {
protected:
    WorkFixture() { qputenv("WNSEARCHDIR", QFile::encodeName(dictionaries.path())); }
    ~WorkFixture() override { qunsetenv("WNSEARCHDIR"); }

    ToolRun make(const QString& work) {
        return runTool(
            {QStringLiteral("make"), work, QStringLiteral("--from"), modules.path(),
             QStringLiteral("--to"), folder.path()});
    }

    // The rows of the work's table, once it is made; fails the test where it is not.
    QList<QVariantList> made(const QString& work, const QString& file, const QString& table) {
        const ToolRun run = make(work);
        EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
        said = run.out;
        return run.exitCode == 0 ? rowsOf(folder.filePath(file), table) : QList<QVariantList>();
    }

    static void cut(const QString& path, qint64 keep) {
        ASSERT_GT(QFile(path).size(), keep);
        ASSERT_TRUE(QFile::resize(path, keep));
    }

    QTemporaryDir modules;
    QTemporaryDir dictionaries;
    QTemporaryDir folder;
    QString said;
};
