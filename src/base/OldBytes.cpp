#include "base/OldBytes.h"

#include "base/FileBytes.h"
#include "base/FileNames.h"

namespace base {

Written ReplaceFile(const std::string& name, std::initializer_list<ByteView> parts,
                    OldBytes& oldBytes)
{
    Written written;
    if (oldBytes == OldBytes::Unknown) {
        written.error = SetAside(name, written.keptAs);
    }
    if (!written.error) {
        written.error = WriteFile(name, parts);
    }
    if (!written.error) {
        oldBytes = OldBytes::Known;
    }
    return written;
}

}  // namespace base
