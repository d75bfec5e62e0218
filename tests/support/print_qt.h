#pragma once
// Lets a failed comparison show Qt's texts as texts.

#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
