// Any bytes as a template and as the values of its rows.

#include "fuzz/fuzz_target.h"

#include "office/papers/template_engine.h"
#include "platform/values/errors.h"

#include <array>

namespace {

void FillRows(const QByteArray& body, const QByteArray& value) {
    const lorvo::RowPattern pattern(body, {"_katcislo_", "_nazev_", "_psc_"});
    QByteArray output;
    pattern.AppendTo(output, std::array<std::optional<QByteArray>, 3>{value, std::nullopt, value});
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const lorvo::ReportTemplate whole(bytes, lorvo::TemplateKind::GroupedRows);
        (void)whole.Check();
        FillRows(whole.Body(), whole.Group());
        FillRows(bytes, whole.Top() + whole.Bottom());
    } catch (const lorvo::PlatformError&) { // refused
    }
    return 0;
}
