#pragma once
// Reader and writer of the settings file syntax, in place of the platform's three profile calls.
//
// Syntax: "[Section]" header lines and "Key=Value" entry lines. Sections and keys match without
// regard to ASCII case and to blanks around them; the first matching section and, in it, the
// first matching key count. Blanks around a value are dropped and a value in matching single or
// double quotes loses its quotes. Any other line (no '=', before the first section) is ignored
// when reading and kept as it is when writing. A missing file reads as empty. Lines end in LF or
// CRLF when read; the file is always written with CRLF.
//
// Arguments are C strings to the platform, so each is cut at its first NUL here as well.
#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane::profile {

// Sets ReturnedString to the value, or to Default (trailing blanks removed) where the file,
// section or key is missing, cut to Size - 1 characters (Size counts the terminator of the
// platform's buffer). Returns the number of characters in ReturnedString.
std::size_t GetPrivateProfileString(const std::string& Section, const std::string& Key,
                                    const std::string& Default, std::string& ReturnedString,
                                    std::size_t Size, const std::string& FileName);

// The value's leading decimal integer (optional sign, wrapping at 32 bits, 0 when there are no
// digits), or Default where the key is missing or its value is empty.
std::int32_t GetPrivateProfileInt(const std::string& Section, const std::string& Key,
                                  std::int32_t Default, const std::string& FileName);

// Creates the file, the section and the key as needed or replaces the key's value in place; a
// new key goes after the last line of its section, a new section to the end of the file. The
// whole file is replaced atomically. Returns false, changing nothing, when the file cannot be
// read or written or when a name cannot be stored without breaking the syntax (see the .cpp).
bool WritePrivateProfileString(const std::string& Section, const std::string& Key,
                               const std::string& Value, const std::string& FileName);

// While a batch for a file is open, writes to it change a copy in memory and reads see that copy;
// the batch's end replaces the file once, atomically. A save of many keys is then one step: a
// kill leaves the old file or the new one, never a mix. Batches of one file do not nest: an inner
// one leaves the work to the outer. User-interface thread only, like the writes themselves.
class WriteBatch {
  public:
    explicit WriteBatch(const std::string& FileName);
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;

  private:
    std::string path_;
    bool owner_ = false;
};

// The number of times a file has been replaced by this process, for tests of the batch.
std::size_t RewriteCount(const std::string& FileName);

} // namespace orvane::profile
