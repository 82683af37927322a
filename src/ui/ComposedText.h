// Texts as they are stored: each base letter and its combining marks as one character (NFC), since
// the code page of the files has no marks.

#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace ui {

inline std::string Composed(const QString& text)
{
    return text.normalized(QString::NormalizationForm_C).toStdString();
}

inline std::string ComposedUtf8(std::string_view utf8)
{
    return Composed(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

}  // namespace ui
