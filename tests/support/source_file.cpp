#include "support/source_file.h"

namespace lorvo::test {

QString SourceFile(const QString& pathInProject) {
    return qEnvironmentVariable("LORVO_SOURCE_DIR", QString::fromUtf8(LORVO_SOURCE_DIR)) + u'/' +
           pathInProject;
}

} // namespace lorvo::test
