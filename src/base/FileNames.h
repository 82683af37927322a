// What lies behind a file name: links, other names of the same file, copies set aside. What the
// standard library cannot ask the system stands in posix/.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace base {

// The name that opening `name` ends at: symbolic links in its last place followed one by one. The
// target need not exist. A ring of links ends at one of its links.
std::string FollowLinks(const std::string& name);

// The folder part of `name`, "." when it has none, "/" for a name in the root folder.
std::string FolderOf(const std::string& name);

// False, too, when it cannot be asked.
bool FolderExists(const std::string& folder);

// True when the user may make files in `folder`; false for one that is not there.
bool MayWriteIn(const std::string& folder);

// True for any entry of a folder, a link without a target included.
bool NameExists(const std::string& name);

// `text` with its letters folded to one case, for comparing names that another system wrote: those
// that Windows-1252 has in both cases; no locale has a say. What is not UTF-8 is read as
// Windows-1252.
std::string FoldCase(std::string_view text);

// Name, without a folder, of a regular file in `folder` that is spelt like `name` but for the case
// of its letters: of several the one that was changed last. None when the folder cannot be read.
std::optional<std::string> FindWithoutCase(const std::string& folder, const std::string& name);

// Makes a rename or a new name in `folder` durable. No error on a file system that cannot.
std::error_code SyncFolder(const std::string& folder);

// True when both names stand for one file: by the same path, by symbolic or hard links; for files
// that do not exist yet, when creating both would create one.
bool SameFile(const std::string& first, const std::string& second);

// Keeps the bytes of a file, before it is replaced, beside it as NAME.ALT, or NAME.ALT2, NAME.ALT3
// ... when that exists. The file stays under its own name. Nothing happens to a missing or empty
// file, nor when one of these names is already the very same file. `copy` becomes the name under
// which the bytes are kept, empty when nothing had to be. On an error the bytes still stand under
// their own name.
std::error_code SetAside(const std::string& name, std::string& copy);

}  // namespace base
