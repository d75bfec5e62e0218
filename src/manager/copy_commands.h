#pragma once
// The commands about copies of the database; as RunScriptCommand has them.

#include <QStringList>

class QTextStream;

namespace lorvo {

int MakeCopyCommand(const QStringList& arguments, QTextStream& out);
/// A line each: name, dogs, payments, sum, result of the check.
int ListCopiesCommand(const QStringList& arguments, QTextStream& out);
/// Names of copies, or "data.mdb" for the present state.
int CompareCopiesCommand(const QStringList& arguments, QTextStream& out);
int PutCopyBackCommand(const QStringList& arguments, QTextStream& out);

} // namespace lorvo
