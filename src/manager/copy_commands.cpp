#include "manager/copy_commands.h"

#include "manager/show_access.h"
#include "office/copies/show_copies.h"

#include <QDir>
#include <QTextStream>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

/// A copy by its name or by the path that making it told; "data.mdb" is the database itself.
QString PathOf(const QString& name, const QString& folder) {
    return name == u"data.mdb" ? DatabasePath(folder) : QDir(CopiesFolder(folder)).filePath(name);
}

} // namespace

int MakeCopyCommand(const ShowAccess& show, const QStringList&, QTextStream& out) {
    return show.SayingFailure([&] { out << show.CopyNow() << '\n'; }) ? kDone : kFailed;
}

int ListCopiesCommand(const ShowAccess& show, const QStringList&, QTextStream& out) {
    for (const ShowCopy& copy : ListCopies(show.Folder(), true))
        out << copy.path.section(u'/', -1) << u"; psů "_s << copy.figures.dogs << u"; plateb "_s
            << copy.figures.payments << "; "
            << QString::fromStdString(copy.figures.paid.ToPlainText(',')) << "; "
            << (copy.fault.isEmpty() ? u"v pořádku"_s : copy.fault) << '\n';
    return kDone;
}

int CompareCopiesCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out) {
    const bool compared = show.SayingFailure([&] {
        out << CompareDatabases(PathOf(arguments[0], show.Folder()),
                                PathOf(arguments[1], show.Folder()))
                   .join(u'\n')
            << '\n';
    });
    return compared ? kDone : kFailed;
}

int PutCopyBackCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out) {
    const bool back = show.AloneInFolder([&] {
        PutCopyBack(show.Folder(), PathOf(arguments[0], show.Folder()), show.Now());
        out << u"Vráceno: "_s << arguments[0] << '\n';
    });
    return back ? kDone : kFailed;
}

} // namespace lorvo
