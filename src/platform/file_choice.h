#pragma once
// Choosing files, as windows ask for it.

#include <QString>

namespace lorvo {

class FileChoice {
  public:
    virtual ~FileChoice() = default;
    /// A file that exists; empty when the clerk chose none. `filter` as the toolkit has it:
    /// "Tabulky (*.csv)".
    [[nodiscard]] virtual QString Open(const QString& title, const QString& filter) = 0;
    /// A file to write, asked about where there is one already; empty when the clerk chose none.
    [[nodiscard]] virtual QString Save(const QString& title, const QString& suggestedPath,
                                       const QString& filter) = 0;
};

} // namespace lorvo
