#pragma once
// The order that the schema of Office Open XML asks for.

#include <QString>

namespace lorvo::test {

/// Fails the test where an element of the document's parts has a child that the schema doesn't
/// allow there, out of its order, or twice where one is allowed; and where it should have children
/// and has none.
void ExpectSchemaOrder(const QString& documentPath);

} // namespace lorvo::test
