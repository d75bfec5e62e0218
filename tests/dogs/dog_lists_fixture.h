#pragma once
// What the tests of the lists of dogs share: breeds, an owner and dogs put straight into the
// database.

#include "app/module_values.h"
#include "store/routines_fixture.h"
#include "support/recording_platform.h"

namespace lorvo::test {

class DogListsTest : public RoutinesTest {
  protected:
    DogListsTest() {
        Module() = ModuleValues();
        Module().MainCurrency = Text("Kč");
        breed = Add("Plemena", {{"Nazev", Text("Boxer")}, {"NazevOrig", Text("Deutscher Boxer")}});
        owner = Add("Majitele", {{"Jmeno", Text("Jana Malá")}});
    }
    ~DogListsTest() override { Module() = ModuleValues(); }

    /// A male of the owner, in class 5, entered at the first closing as its owner's further dog.
    int AddDog(const char* name, Assignments more = {}) {
        Assignments fields = {{"Jmeno", Text(name)}, {"PlemenoID", breed}, {"MajitelID", owner},
                              {"PohlaviPes", true},  {"Trida", 5},         {"PrvniUzaverka", true}};
        for (auto& field : more)
            fields.push_back(std::move(field));
        return Add("Psi", fields);
    }
    /// A show where the further dog of class 5 pays this much at the first closing and ten less at
    /// the second, and the first dog twice as much.
    int AddShow(const char* name, int fee) {
        return Add("Vystavy", {{"Nazev", Text(name)},
                               {"PoplatkyIClass5D2", Currency::FromUnits(fee)},
                               {"PoplatkyIIClass5D2", Currency::FromUnits(fee - 10)},
                               {"PoplatkyIClass5D1", Currency::FromUnits(2 * fee)}});
    }
    int AddCompetition(const char* name, int price) {
        return Add("Souteze", {{"Nazev", Text(name)}, {"Cena", Currency::FromUnits(price)}});
    }
    static void Enter(int dog, int show) {
        AddLink("PsiVeVystavach", {{"PesID", dog}, {"VystavaID", show}});
    }
    static void Compete(int dog, int competition) {
        AddLink("Vazby_Souteze", {{"ID_Psa", dog}, {"ID_Souteze", competition}});
    }
    static void Award(int dog, int award) {
        AddLink("PsiOceneni", {{"IDPsa", dog}, {"IDOceneni", award}});
    }
    static void Pay(int dog, const char* amount) {
        Add("Uhrady", {{"ID_Psa", dog}, {"Kc", Currency::FromText(amount)}});
    }

    RecordingPlatform platform;
    int breed = 0;
    int owner = 0;
};

} // namespace lorvo::test
