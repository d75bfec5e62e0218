#pragma once
// The two formats of spreadsheets. Each reads the first sheet's cells as they were last reckoned;
// PlatformError tells what can't be read, as a cause in Czech without the file's name.

#include "office/exchange/sheet_grid.h"
#include "office/exchange/zip_parts.h"

namespace lorvo {

/// Office Open XML (.xlsx).
void ReadXlsx(const ZipParts& parts, SheetGrid& grid);

/// OpenDocument (.ods).
void ReadOds(const ZipParts& parts, SheetGrid& grid);

} // namespace lorvo
