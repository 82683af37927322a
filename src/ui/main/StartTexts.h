// What the start of a run and its first write have to tell, in German.

#pragma once

#include <QString>

#include "app/StartUp.h"

namespace ui {

// Which file, what is wrong with it, and that it is as it was.
QString FaultText(const app::SetupFault& fault);

// One line.
QString NoticeText(const app::StartNotice& notice);

// Where the bytes are that a write has replaced.
QString KeptText(const std::string& file, const std::string& keptAs);

// `used` is the data folder that is used in place of the program's own.
QString PassedOverText(const std::string& ownFolder, const QString& used);

}  // namespace ui
