#pragma once
// The bare limit of what the program reads and writes: the engine's C interface, nothing between.

#include <QString>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace lorvo::bench {

class BareDatabase {
  public:
    explicit BareDatabase(const QString& path);
    ~BareDatabase();
    BareDatabase(const BareDatabase&) = delete;
    BareDatabase& operator=(const BareDatabase&) = delete;

    sqlite3_stmt* Prepare(const char* sql); ///< finalized with the database
    void Execute(const char* sql);

  private:
    sqlite3* database_ = nullptr;
    std::vector<sqlite3_stmt*> statements_;
};

/// Fetches every cell of every row.
void ReadToEnd(sqlite3_stmt* statement);

struct BareDog {
    int ID;
    int PlemenoID;
    int Cislo;
    int Trida;
    bool PohlaviPes;
    QString Jmeno;
};

/// All dogs by breed, sex, class and name in Czech order, by sort keys computed once per row.
std::vector<BareDog> ReadDogs(BareDatabase& database);

/// The statements of one dog's card, each read to its end.
class BareCard {
  public:
    explicit BareCard(BareDatabase& database);
    void Read(int psiID);

  private:
    std::vector<sqlite3_stmt*> statements_;
};

} // namespace lorvo::bench
