#include "csv_table.h"

#include <algorithm>
#include <stdexcept>

namespace lorvo {

namespace {

class CsvParser {
  public:
    explicit CsvParser(std::string_view text) : rest_(text) {}

    std::vector<std::vector<std::string>> Run() {
        std::vector<std::vector<std::string>> rows;
        while (!rest_.empty()) {
            rows.emplace_back();
            do
                rows.back().push_back(ReadField());
            while (Accept(','));
            Accept('\r');
            Accept('\n');
            ++line_;
        }
        return rows;
    }

  private:
    std::string ReadField() {
        if (Accept('"'))
            return ReadQuoted();
        const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
        std::string field(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return field;
    }

    std::string ReadQuoted() {
        std::string field;
        for (;;) {
            const std::size_t quote = rest_.find('"');
            if (quote == std::string_view::npos)
                throw std::runtime_error("line " + std::to_string(line_) + ": a quote has no end");
            field += rest_.substr(0, quote);
            rest_.remove_prefix(quote + 1);
            if (!Accept('"'))
                return field;
            field += '"'; // two quotes stand for one
        }
    }

    bool Accept(char expected) {
        const bool accepted = !rest_.empty() && rest_.front() == expected;
        rest_.remove_prefix(accepted ? 1 : 0);
        return accepted;
    }

    std::string_view rest_;
    int line_ = 1;
};

} // namespace

std::vector<std::vector<std::string>> ParseCsv(std::string_view text) {
    return CsvParser(text).Run();
}

} // namespace lorvo
