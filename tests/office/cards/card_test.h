#pragma once
// A small show for the tests of the cards and panels.

#include "app/module_values.h"

#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>

namespace lorvo {

/// An empty database, the constant tables filled, amounts in "Kč".
class CardTest : public ::testing::Test {
  protected:
    CardTest() {
        Module() = {};
        Module().MainCurrency = QStringLiteral("Kč");
    }

    void Run(const std::string& sql) { database.Execute(sql); }

    /// The kennel's breed 12, the special breed 949 and the owner 7.
    void AddBreedsAndOwner() {
        Run("INSERT INTO Plemena (ID, Nazev, NazevOrig, FCI, Pouzivat) VALUES "
            "(12, 'Pudl', 'Caniche', 9, -1), (949, 'Německý ovčák', 'Deutscher Schäferhund', 1, "
            "-1),"
            "(13, '', 'Barzoi', 10, -1)");
        Run("INSERT INTO Majitele (ID, Jmeno, Ulice, PSC, Mesto, Stat, Telefon, Email) VALUES "
            "(7, 'Jana Malá', 'Dlouhá 5', 11000, 'Praha', 'CZ', '603 111 222', 'jana@psi.cz')");
    }
    /// A show whose fee in each column is `base` + 10 * class, second closing 1000 more, a further
    /// dog 1 less.
    void AddShow(int id, const std::string& name, int base) {
        Run("INSERT INTO Vystavy (ID, Nazev) VALUES (" + std::to_string(id) + ", '" + name + "')");
        for (int n = 1; n <= 9; ++n)
            for (int closing = 1; closing <= 2; ++closing)
                for (int m = 1; m <= 2; ++m)
                    SetFee(id, closing, n, m, base + 10 * n + 1000 * (closing - 1) - (m - 1));
    }
    void SetFee(int show, int closing, int column, int position, int units) {
        Run("UPDATE Vystavy SET Poplatky" + std::string(closing == 1 ? "I" : "II") + "Class" +
            std::to_string(column) + "D" + std::to_string(position) + " = " +
            std::to_string(units) + "0000 WHERE ID = " + std::to_string(show));
    }
    /// A bitch of the owner 7: second closing, not the first dog.
    void AddDog(int id, const std::string& name, int breed = 12, int trida = 5) {
        Run("INSERT INTO Psi (ID, Jmeno, ChovnaStanice, PlemenoID, MajitelID, Trida) VALUES (" +
            std::to_string(id) + ", '" + name + "', 'z Lhoty', " + std::to_string(breed) + ", 7, " +
            std::to_string(trida) + ")");
    }
    void Enter(int dog, int show) {
        Run("INSERT INTO PsiVeVystavach VALUES (" + std::to_string(dog) + ", " +
            std::to_string(show) + ")");
    }
    /// The dog 3 in the shows 1 for 300 and 2 for 200.
    void AddDogInTwoShows() {
        AddShow(1, "První", 0);
        AddShow(2, "Druhá", 0);
        SetFee(1, 2, 5, 2, 300);
        SetFee(2, 2, 5, 2, 200);
        AddDog(3, "Alík");
        Enter(3, 1);
        Enter(3, 2);
    }
    void Compete(int dog, int competition) {
        Run("INSERT INTO Vazby_Souteze VALUES (" + std::to_string(dog) + ", " +
            std::to_string(competition) + ")");
    }
    void Pay(int dog, int units) {
        Run("INSERT INTO Uhrady (ID_Psa, Kc) VALUES (" + std::to_string(dog) + ", " +
            std::to_string(units) + "0000)");
    }

    test::RecordingPlatform platform;
    TempDatabase database;
};

} // namespace lorvo
