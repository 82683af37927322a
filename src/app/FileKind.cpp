#include "app/FileKind.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/FileBytes.h"
#include "map/AdjustmentFile.h"
#include "stations/Configuration.h"
#include "stations/WorkingFile.h"

namespace app {

namespace {

bool IsDatabase(const std::string& name)
{
    using stations::DatabaseStatus;
    const DatabaseStatus status = stations::ReadDatabase(name).status;
    return status == DatabaseStatus::Complete || status == DatabaseStatus::BadCount
           || status == DatabaseStatus::CutShort;
}

bool IsAdjustment(base::ByteView beginning)
{
    using map::AdjustmentState;
    const AdjustmentState state = map::UnpackAdjustment(beginning).state;
    return state != AdjustmentState::TooShort && state != AdjustmentState::Foreign;
}

bool IsConfiguration(base::ByteView beginning)
{
    return stations::UnpackConfiguration(beginning).status == stations::ConfigurationStatus::Read;
}

}  // namespace

FileKind KindOf(const std::string& name)
{
    constexpr std::uint64_t kBeginning = 4096;  // every mark lies in it
    base::InputFile file(name);
    if (file.Status() == base::FileStatus::Missing || file.Status() == base::FileStatus::NoFolder) {
        return FileKind::Missing;
    }
    base::ByteVector beginning(static_cast<std::size_t>(std::min(file.Size(), kBeginning)));
    if (!file.Read(beginning)) {
        return FileKind::Unreadable;
    }
    if (IsDatabase(name)) {
        return FileKind::Database;
    }
    if (IsAdjustment(beginning)) {
        return FileKind::Adjustment;
    }
    return IsConfiguration(beginning) ? FileKind::Configuration : FileKind::Other;
}

}  // namespace app
