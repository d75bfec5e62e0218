// What each failure of the engine is taken for, and what the clerk is told to do.

#include "store/engine_failure.h"

#include "platform/values/errors.h"
#include "store/store_test.h"

#include <sqlite3.h>

namespace lorvo {

namespace {

enum class Kind { Statement, Disk, Damage };

Kind KindOf(sqlite3* handle) {
    try {
        ThrowFailure(handle);
    } catch (const CorruptStoreError&) {
        return Kind::Damage;
    } catch (const DiskError&) {
        return Kind::Disk;
    } catch (const StoreError&) {
        return Kind::Statement;
    }
}

/// A connection whose last call failed with a code of the test's choice.
class FailingEngine {
  public:
    FailingEngine() {
        sqlite3_open(":memory:", &handle);
        sqlite3_create_function(handle, "fail", 1, SQLITE_UTF8, nullptr, Fail, nullptr, nullptr);
    }
    ~FailingEngine() { sqlite3_close(handle); }
    FailingEngine(const FailingEngine&) = delete;
    FailingEngine& operator=(const FailingEngine&) = delete;

    void FailWith(int code) const {
        const std::string statement = "SELECT fail(" + std::to_string(code) + ")";
        sqlite3_exec(handle, statement.c_str(), nullptr, nullptr, nullptr);
    }

    sqlite3* handle = nullptr;

  private:
    static void Fail(sqlite3_context* context, int, sqlite3_value** values) {
        sqlite3_result_error_code(context, sqlite3_value_int(values[0]));
    }
};

struct Expected {
    int code;
    Kind kind;
    const char* cause;
    const char* advice;
};

constexpr Expected kFailures[] = {
    {SQLITE_CORRUPT, Kind::Damage, "soubor je poškozený", "použijte kopii ze složky Zálohy"},
    {SQLITE_NOTADB, Kind::Damage, "soubor je poškozený", "použijte kopii ze složky Zálohy"},
    {SQLITE_FULL, Kind::Disk, "na disku není místo", "Uvolněte na něm místo"},
    {SQLITE_READONLY_DBMOVED, Kind::Disk, "soubor je jen pro čtení", "Povolte do něj"},
    {SQLITE_PERM, Kind::Disk, "soubor je jen pro čtení", "Povolte do něj"},
    {SQLITE_IOERR_READ, Kind::Disk, "disk nelze číst nebo na něj zapisovat", "Zkontrolujte disk"},
    {SQLITE_CANTOPEN, Kind::Disk, "soubor nebo jeho žurnál nelze otevřít", "Povolte do něj"},
    {SQLITE_BUSY, Kind::Disk, "soubor používá jiný program", "Ukončete program"},
    {SQLITE_LOCKED, Kind::Disk, "soubor používá jiný program", "Ukončete program"},
    {SQLITE_NOMEM, Kind::Disk, "nedostatek paměti", "Ukončete jiné programy"},
    {SQLITE_CONSTRAINT, Kind::Statement, "hodnota porušuje pravidla tabulky (", ""},
    {SQLITE_TOOBIG, Kind::Statement, "hodnota je příliš dlouhá (", ""},
    {SQLITE_ERROR, Kind::Statement, "příkaz nelze provést (", ""},
};

TEST(EngineFailureTest, EachIsTakenForWhatItIsAndSaysWhatToDo) {
    for (const Expected& expected : kFailures) {
        const FailingEngine engine;
        engine.FailWith(expected.code);
        EXPECT_EQ(KindOf(engine.handle), expected.kind) << expected.code;
        const std::string text = FailureOf([&] { ThrowFailure(engine.handle); });
        EXPECT_NE(text.find(expected.cause), std::string::npos) << text;
        EXPECT_NE(text.find(expected.advice), std::string::npos) << text;
    }
}

TEST(EngineFailureTest, AFileFoundDamagedIsNotWrittenToFromThenOn) {
    const FailingEngine engine;
    engine.FailWith(SQLITE_FULL);
    EXPECT_EQ(KindOf(engine.handle), Kind::Disk);
    EXPECT_FALSE(IsFileLeftAlone(engine.handle));
    engine.FailWith(SQLITE_CORRUPT);
    EXPECT_EQ(KindOf(engine.handle), Kind::Damage);
    EXPECT_TRUE(IsFileLeftAlone(engine.handle));
}

} // namespace
} // namespace lorvo
