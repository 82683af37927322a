// File names as the core holds them, the file system's own bytes, and as Qt shows them.

#pragma once

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

}  // namespace ui
