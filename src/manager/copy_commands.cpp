#include "manager/copy_commands.h"

#include "manager/show_session.h"
#include "office/copies/show_copies.h"
#include "platform/platform.h"

#include <QTextStream>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

const QString& Folder() {
    return ThePlatform().programFolder;
}

DateValue Now() {
    return ThePlatform().clock->Now();
}

QString PathOf(const QString& name) {
    return name == u"data.mdb" ? DatabasePath(Folder()) : CopiesFolder(Folder()) + u'/' + name;
}

} // namespace

int MakeCopyCommand(const QStringList&, QTextStream& out) {
    return SayingFailure([&out] { out << MakeCopy(Folder(), Now()) << '\n'; }) ? kDone : kFailed;
}

int ListCopiesCommand(const QStringList&, QTextStream& out) {
    for (const ShowCopy& copy : ListCopies(Folder(), true))
        out << copy.path.section(u'/', -1) << u"; psů "_s << copy.figures.dogs << u"; plateb "_s
            << copy.figures.payments << "; "
            << QString::fromStdString(copy.figures.paid.ToPlainText(',')) << "; "
            << (copy.fault.isEmpty() ? u"v pořádku"_s : copy.fault) << '\n';
    return kDone;
}

int CompareCopiesCommand(const QStringList& arguments, QTextStream& out) {
    const bool compared = SayingFailure([&] {
        out << CompareDatabases(PathOf(arguments[0]), PathOf(arguments[1])).join(u'\n') << '\n';
    });
    return compared ? kDone : kFailed;
}

int PutCopyBackCommand(const QStringList& arguments, QTextStream& out) {
    const bool back = AloneInFolder([&] {
        PutCopyBack(Folder(), PathOf(arguments[0]), Now());
        out << u"Vráceno: "_s << arguments[0] << '\n';
    });
    return back ? kDone : kFailed;
}

} // namespace lorvo
