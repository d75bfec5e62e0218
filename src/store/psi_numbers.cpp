// Catalogue numbers: thousands of dogs are numbered in one go, so that nothing is read that isn't
// needed.
#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/data_module.h"
#include "store/psi.h"
#include "store/query.h"

#include <sqlite3.h>

namespace lorvo {

void SetDogNumber(int psiID, int cislo) {
    Connection::Impl& store = TheDataModule().Conn1.Internals();
    store.BeforeEdit();
    const CachedStatement update = store.PrepareNative("UPDATE Psi SET Cislo = ?1 WHERE ID = ?2");
    BindAll(update, {cislo, psiID});
    Execute(update);
    if (sqlite3_changes(store.Handle()) == 0)
        throw StoreError("Tabulka Psi: pes s ID " + Number(psiID) + " už v databázi není.");
    store.EditDone();
}

void RemoveDogNumbers() {
    Connection& connection = TheDataModule().Conn1;
    std::vector<int> dogs;
    for (Query rows(connection, "SELECT ID FROM Psi"); rows.Next();)
        dogs.push_back(rows.Int(0));
    EditRun run(connection);
    for (const int psiID : dogs)
        SetDogNumber(psiID, 0);
    run.Finish();
}

} // namespace lorvo
