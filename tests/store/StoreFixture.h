// A fresh folder for each test, and short ways to make files in it and to open cursors on them.
#pragma once

#include "basic/Error.h"
#include "store/DataFile.h"
#include "store/StoreTuning.h"
#include "store/Workspace.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>

using namespace Qt::StringLiterals;

// So that a failed comparison shows the text.
void PrintTo(const QString& text, std::ostream* stream);

struct Verse {
    int book;
    int chapter;
    int verse;
    QVariant body = {};
    QVariant note = {};
};

class StoreFixture : public testing::Test {
protected:
    // Many writes are made here, and none has to survive a loss of power; files that others hold
    // are not waited for.
    StoreFixture();
    ~StoreFixture() override;

    QString path(const QString& name = u"test.mdb"_s) const { return m_folder.filePath(name); }

    // Makes a translation of these verses, with the numbers 1, 2, ... in this order.
    void makeTranslation(const std::vector<Verse>& verses, const QString& name = u"test.mdb"_s);

    // Makes a file by these statements.
    void makeFile(const std::vector<const char*>& statements, const QString& name = u"test.mdb"_s);

    Database openDatabase(const QString& name = u"test.mdb"_s);
    Recordset openByVerse(const QString& name = u"test.mdb"_s);
    Recordset
    openDynaset(const QString& source = u"tblMain"_s, const QString& name = u"test.mdb"_s);

private:
    QTemporaryDir m_folder;
    StoreTuning m_tuningBefore;
};

// The number of the Error that the operation throws; no value if it throws none.
std::optional<Error::Number> errorOf(const std::function<void()>& operation);

// The text of that Error, empty if there is none.
QString errorTextOf(const std::function<void()>& operation);

// The number of the row that a cursor stands on; 0 without a row.
qlonglong rowOf(Recordset& cursor);

// The numbers of all rows in the cursor's order, by a walk on or back.
std::vector<qlonglong> walk(Recordset cursor);
std::vector<qlonglong> walkBack(Recordset cursor);
