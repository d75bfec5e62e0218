#pragma once
// Statements kept by their shape: the same statement with other values in it is neither
// translated nor prepared again.

#include "store/dialect_translator.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace lorvo {

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
};
using PreparedStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A statement in use; its destructor resets it and gives it back to the cache.
class CachedStatement {
  public:
    struct Entry {
        std::shared_ptr<const Translation> translation;
        std::vector<PreparedStatement> idle;
        bool forgotten = false; ///< the cache has been cleared since
    };

    CachedStatement(std::shared_ptr<Entry> entry, PreparedStatement prepared)
        : entry_(std::move(entry)), prepared_(std::move(prepared)) {}
    ~CachedStatement();
    CachedStatement(CachedStatement&&) = default;
    CachedStatement& operator=(CachedStatement&&) = delete;

    sqlite3_stmt* Handle() const { return prepared_.get(); }
    const std::shared_ptr<const Translation>& Translated() const { return entry_->translation; }

  private:
    std::shared_ptr<Entry> entry_;
    PreparedStatement prepared_;
};

class StatementCache {
  public:
    /// A statement of the dialect. Raises StoreError.
    CachedStatement Translated(const StatementTokens& statement, const Schema& schema,
                               sqlite3* handle);
    /// A statement of SQLite's own, for the store's writing. Raises StoreError.
    CachedStatement Native(const std::string& sql, sqlite3* handle);
    /// Forgets all. Statements in use are finished when they are given back.
    void Clear();

  private:
    using EntryPointer = std::shared_ptr<CachedStatement::Entry>;

    EntryPointer Remember(const std::string& key, Translation translation);

    std::unordered_map<std::string, EntryPointer> entries_;
};

} // namespace lorvo
