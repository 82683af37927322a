// File names as the core holds them, the file system's own bytes, and as Qt shows them.

#pragma once

#include <filesystem>
#include <string>

#include <QFile>

namespace ui {

inline std::string Native(const QString& file)
{
    return QFile::encodeName(file).toStdString();
}

inline QString Shown(const std::string& file)
{
    return QFile::decodeName(QByteArray::fromStdString(file));
}

// `file` with "." and `ending` behind it when its last part has no ending. A point that leads the
// last part begins no ending.
inline QString WithEnding(const QString& file, const QString& ending)
{
    return std::filesystem::path(Native(file)).has_extension() ? file : file + u'.' + ending;
}

}  // namespace ui
