#pragma once
// What the tests of exhibitors share: shows with fees, dogs that stand in them, and a walk that
// reckons each owner's figures dog by dog with the statements for one row.

#include "app/module_values.h"
#include "office/fees/account.h"
#include "store/majitele.h"
#include "store/psi.h"
#include "store/psi_ve_vystavach.h"
#include "store/routines_fixture.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"
#include "support/recording_platform.h"

#include <algorithm>

namespace lorvo::test {

class ExhibitorsTest : public RoutinesTest {
  protected:
    ExhibitorsTest() {
        Module() = ModuleValues();
        Module().MainCurrency = Text("Kč");
    }
    ~ExhibitorsTest() override { Module() = ModuleValues(); }

    static int AddOwner(const char* name, const Assignments& more = {}) {
        Assignments fields = {{"Jmeno", Text(name)}};
        fields.insert(fields.end(), more.begin(), more.end());
        return Add("Majitele", fields);
    }
    /// A show with these fees; the others are Null.
    static int AddShow(const Assignments& fees) {
        Assignments fields = {{"Nazev", Text("Výstava")}};
        fields.insert(fields.end(), fees.begin(), fees.end());
        return Add("Vystavy", fields);
    }
    static int AddDog(const char* name, int owner, const Assignments& more = {}) {
        Assignments fields = {{"Jmeno", Text(name)}, {"MajitelID", owner}, {"Trida", 5}};
        fields.insert(fields.end(), more.begin(), more.end());
        return Add("Psi", fields);
    }
    static void Enter(int dog, int show) {
        AddLink("PsiVeVystavach", {{"PesID", dog}, {"VystavaID", show}});
    }
    static void Compete(int dog, int competition) {
        AddLink("Vazby_Souteze", {{"ID_Psa", dog}, {"ID_Souteze", competition}});
    }
    static int AddCompetition(const char* name, Value price) {
        return Add("Souteze", {{"Nazev", Text(name)}, {"Cena", std::move(price)}});
    }
    static void Pay(int dog, Currency kc) { Add("Uhrady", {{"ID_Psa", dog}, {"Kc", kc}}); }

    /// Figures of an owner, read dog by dog and row by row.
    static AccountTotals Walk(int owner) {
        AccountTotals figures;
        for (const Psi& dog : DogsOfOwner(owner, DogOrder::ByID)) {
            ++figures.dogs;
            figures.paid += PaidForDog(dog.ID);
            for (const int show : ShowsOfDog(dog.ID))
                figures.owed +=
                    ShowFee(show, FeeColumn(dog.PrvniUzaverka, dog.Trida, dog.PrvniPes));
            const std::vector<int> entered = CompetitionsOfDog(dog.ID);
            for (const Souteze& competition : CompetitionsByName())
                if (std::ranges::count(entered, competition.ID) > 0)
                    figures.owed += competition.Cena.value_or(Currency());
        }
        return figures;
    }

    RecordingPlatform platform;
};

} // namespace lorvo::test
