#include "store/statement_cache.h"

#include "store/engine_failure.h"

#include <sqlite3.h>

namespace lorvo {

namespace {

/// The program has some two hundred shapes; lists of numbers may make more.
constexpr std::size_t kMostEntries = 500;

CachedStatement Take(const std::shared_ptr<CachedStatement::Entry>& entry, sqlite3* handle) {
    if (!entry->idle.empty()) {
        PreparedStatement prepared = std::move(entry->idle.back());
        entry->idle.pop_back();
        return {entry, std::move(prepared)};
    }
    const std::string& sql = entry->translation->sql;
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v3(handle, sql.data(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
    if (code != SQLITE_OK)
        ThrowFailure(handle);
    return {entry, PreparedStatement(prepared)};
}

} // namespace

void FinalizeStatement::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

CachedStatement::~CachedStatement() {
    if (!prepared_)
        return;
    sqlite3_reset(prepared_.get());
    sqlite3_clear_bindings(prepared_.get());
    if (!entry_->forgotten)
        entry_->idle.push_back(std::move(prepared_));
}

CachedStatement StatementCache::Translated(const StatementTokens& statement, const Schema& schema,
                                           sqlite3* handle) {
    const auto found = entries_.find(statement.shape);
    return Take(found != entries_.end() ? found->second
                                        : Remember(statement.shape, Translate(statement, schema)),
                handle);
}

CachedStatement StatementCache::Native(const std::string& sql, sqlite3* handle) {
    const auto found = entries_.find(sql);
    if (found != entries_.end())
        return Take(found->second, handle);
    Translation asItIs;
    asItIs.sql = sql;
    return Take(Remember(sql, std::move(asItIs)), handle);
}

StatementCache::EntryPointer StatementCache::Remember(const std::string& key,
                                                      Translation translation) {
    if (entries_.size() >= kMostEntries)
        Clear();
    auto entry = std::make_shared<CachedStatement::Entry>();
    entry->translation = std::make_shared<const Translation>(std::move(translation));
    entries_.emplace(key, entry);
    return entry;
}

void StatementCache::Clear() {
    for (const auto& [key, entry] : entries_) {
        entry->forgotten = true;
        entry->idle.clear();
    }
    entries_.clear();
}

} // namespace lorvo
