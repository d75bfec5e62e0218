#pragma once
// The commands about copies of the database; as RunScriptCommand has them.

#include <QStringList>

class QTextStream;

namespace lorvo {

class ShowAccess;

int MakeCopyCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out);
/// A line each: name, dogs, payments, sum, result of the check.
int ListCopiesCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out);
/// Names of copies, or "data.mdb" for the present state.
int CompareCopiesCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out);
int PutCopyBackCommand(const ShowAccess& show, const QStringList& arguments, QTextStream& out);

} // namespace lorvo
