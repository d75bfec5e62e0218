#pragma once
// Combo boxes that offer what was entered before and take any text.

#include <QString>
#include <vector>

class QComboBox;
class QWidget;

namespace lorvo {

/// An empty one. What fits the typed letters, whatever their case, is offered below the box.
QComboBox* StoredTextsCombo(const QString& name, QWidget* parent);
/// Gives the box its list, the empty text left out; what stands in the box stays.
void SetStoredTexts(QComboBox& combo, const std::vector<QString>& texts);

} // namespace lorvo
