#pragma once
// What the tests of the tables' routines share: a fresh database and rows put straight into it.

#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/rows.h"
#include "support/print_qt.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>

namespace lorvo::test {

using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

class RoutinesTest : public ::testing::Test {
  protected:
    /// A row of a table with an ID; fields that aren't given stay at the table's defaults.
    static int Add(const std::string& table, const Assignments& fields) {
        return InsertRow(TheDataModule().rsrsQuery1, table, fields);
    }
    /// A row of a table without an ID.
    static void AddLink(const std::string& table, const Assignments& fields) {
        RecordSet& set = TheDataModule().rsrsQuery1;
        set.Open("SELECT * FROM " + table);
        set.AddNew();
        for (const auto& [field, value] : fields)
            set.Set(field, value);
        set.Update();
        set.Close();
    }
    static int AddCurrency(const char* name, const char* abbreviation, Currency rate,
                           bool main = false) {
        return Add("Meny", {{"Nazev", Text(name)},
                            {"Zkratka", Text(abbreviation)},
                            {"Kurs", rate},
                            {"Hlavni", main}});
    }
    /// The first column of a statement's rows, Null as empty text.
    static Texts Column(const std::string& statement) {
        Texts texts;
        for (const QString& text : ReadTexts(statement))
            texts.push_back(text.toStdString());
        return texts;
    }
    /// Writes into the file what the program itself never would.
    void Execute(const std::string& sql) { database.Execute(sql); }
    static bool IsNull(const std::string& statement) {
        return ReadScalar(TheDataModule().rsrsQuery1, statement).IsNull();
    }
    static QString Text(const char* text) { return QString::fromUtf8(text); }

    template<class Rows> static Texts Jmena(const Rows& rows) {
        Texts names;
        for (const auto& row : rows)
            names.push_back(row.Jmeno.toStdString());
        return names;
    }
    template<class Rows> static Texts Nazvy(const Rows& rows) {
        Texts names;
        for (const auto& row : rows)
            names.push_back(row.Nazev.toStdString());
        return names;
    }
    static Texts ToTexts(const std::vector<QString>& values) {
        Texts texts;
        for (const QString& value : values)
            texts.push_back(value.toStdString());
        return texts;
    }

    TempDatabase database;
};

} // namespace lorvo::test
