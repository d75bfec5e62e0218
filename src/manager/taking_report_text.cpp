#include "manager/taking_report_text.h"

#include "app/common_routines.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

QString TakingReportText(const TakingReport& report, const QString& path) {
    const auto line = [](const QString& caption, int count) {
        return caption + u' ' + QString::number(count);
    };
    return QStringList{u"Převzato ze souboru "_s + path,
                       line(u"Psů:"_s, report.dogs),
                       line(u"Nových majitelů:"_s, report.newOwners),
                       line(u"Přihlášek na výstavy a do soutěží:"_s, report.entries),
                       u"Poplatky: "_s + AmountText(report.fees).trimmed(),
                       line(u"Plateb:"_s, report.payments),
                       u"Uhrazeno: "_s + AmountText(report.paid).trimmed()}
        .join(u'\n');
}

QString RestOverItsSource() {
    return u"Zbytek nelze uložit do souboru, ze kterého se přihlášky berou. Zvolte jiný název."_s;
}

bool AreJudgedAlike(const std::vector<EntryLine>& some, const std::vector<EntryLine>& others) {
    return std::ranges::equal(some, others, [](const EntryLine& one, const EntryLine& other) {
        return one.state == other.state && one.reasons == other.reasons &&
               one.entry.dog.MajitelID == other.entry.dog.MajitelID;
    });
}

} // namespace lorvo
