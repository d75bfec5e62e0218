#pragma once
// Texts of amounts for long lists.

#include "platform/values/money.h"

#include <QString>
#include <unordered_map>

namespace lorvo {

/// A show has few different amounts: each is written once, and all cells that show it share the
/// text. Good as long as the main currency stays what it is.
class AmountTexts {
  public:
    using Writer = QString (*)(Currency);
    explicit AmountTexts(Writer write) : write_(write) {}

    const QString& Of(Currency amount) {
        QString& text = texts_[amount.Raw()];
        if (text.isNull())
            text = write_(amount);
        return text;
    }

  private:
    Writer write_;
    std::unordered_map<std::int64_t, QString> texts_;
};

} // namespace lorvo
