#pragma once
// Files of the source tree that tests read: schema, breed list, templates, documents to compare
// with.

#include <QString>

namespace lorvo::test {

/// The path of a file of the source tree, wherever the test program is started. The tree is the one
/// that it was built from; LORVO_SOURCE_DIR names another (a machine that has only the programs).
QString SourceFile(const QString& pathInProject);

} // namespace lorvo::test
