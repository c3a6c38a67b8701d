#pragma once
// Lookups in the desktop's shared MIME database (the folders "mime" under the XDG data folders,
// as update-mime-database leaves them): a file name's type by its globs, a type's description and
// icons. Plain file reading, so that it works without a desktop session.
#include <string>
#include <vector>

namespace orvane {

// $XDG_DATA_HOME/mime (default ~/.local/share/mime), then each $XDG_DATA_DIRS/mime (default
// /usr/local/share and /usr/share), the user's own first. Each ends in '/'.
std::vector<std::string> MimeDatabaseFolders();

// The type whose glob matches the file name (not a path) best: the highest weight, then the
// longest pattern, then the earlier folder. Empty when none matches.
std::string MimeTypeForFileName(const std::vector<std::string>& folders,
                                const std::string& fileName);

// The type's description in `language` ("de_AT" tries "de_AT", then "de"), else untranslated,
// from the first folder that describes the type. Empty when none does.
std::string MimeTypeComment(const std::vector<std::string>& folders, const std::string& type,
                            const std::string& language);

// The type's own icon name ("text-html"), and the generic one of its kind ("text-x-generic").
std::string MimeTypeIcon(const std::vector<std::string>& folders, const std::string& type);
std::string MimeTypeGenericIcon(const std::vector<std::string>& folders, const std::string& type);

// The user's language for messages from LC_ALL, LC_MESSAGES or LANG: "de_AT" from
// "de_AT.UTF-8@euro"; empty for "C" and "POSIX".
std::string MessagesLanguage();

} // namespace orvane
