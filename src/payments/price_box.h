#pragma once
// The box of prices that the payment windows carry.

class QGroupBox;
class QWidget;

namespace lorvo {

/// The box with the price, what has been paid of it and what remains. Nothing fills it: the balance
/// of a dog stands on its panel.
QGroupBox* PriceBox(QWidget* parent);

} // namespace lorvo
