#pragma once
// The rows of a table of links, all at once.

#include <QHash>
#include <span>
#include <utility>
#include <vector>

namespace lorvo {

/// What is linked to each owner, in row order. All of it lies in one piece of memory: to make and
/// free a list for each of many thousand dogs takes longer than to read their rows.
class LinkTable {
  public:
    /// Owner and target of each row.
    using Rows = std::vector<std::pair<int, int>>;
    explicit LinkTable(Rows rows);

    /// Those with a row, each once, rising.
    std::vector<int> Owners() const;
    /// Empty for an owner without a row; good as long as the table is.
    std::span<const int> Of(int owner) const;

  private:
    struct Place {
        int first = 0;
        int count = 0;
    };
    std::vector<int> targets_;
    QHash<int, Place> places_;
};

} // namespace lorvo
