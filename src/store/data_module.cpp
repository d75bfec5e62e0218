#include "store/data_module.h"

namespace lorvo {

namespace {

constexpr auto kUpdatable = RecordSet::Lock::Updatable;
constexpr auto kReadOnly = RecordSet::Lock::ReadOnly;

} // namespace

DataModule::DataModule()
    : rsBarvy(Conn1, "Barvy", kUpdatable), rsKruhy(Conn1, "Kruhy", kUpdatable),
      rsPlemena(Conn1, "Plemena", kUpdatable), rsPsi(Conn1, "Psi", kUpdatable),
      rsVazby_Trida(Conn1, "Vazby_Trida", kReadOnly), rsOstatni(Conn1, "Ostatni", kUpdatable),
      rsMajitele(Conn1, "Majitele", kUpdatable), rsSouteze(Conn1, "Souteze", kUpdatable),
      rsVazby_Souteze(Conn1, "Vazby_Souteze", kUpdatable), rsMeny(Conn1, "Meny", kUpdatable),
      rsUhrady(Conn1, "Uhrady", kUpdatable), rsVystavy(Conn1, "Vystavy", kUpdatable),
      rsPsiVeVystavach(Conn1, "PsiVeVystavach", kUpdatable),
      rsOceneni(Conn1, "Oceneni", kUpdatable), rsPsiOceneni(Conn1, "PsiOceneni", kUpdatable),
      rsrsQuery1(Conn1, "rsQuery1", kUpdatable), rsrsQuery2(Conn1, "rsQuery2", kReadOnly) {}

DataModule& TheDataModule() {
    static DataModule module;
    return module;
}

} // namespace lorvo
