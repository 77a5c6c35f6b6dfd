// WAD files, the containers of the engines: a header of 12 bytes ("IWAD" or "PWAD", the number of
// lumps, the directory's offset), a directory, and named blocks of bytes called lumps.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "wad/directory.h"

/// At most one open WAD file, closed with the instance. Lumps are known by their index in the
/// directory, from 0; -1 means no lump. An index that there is not gives a lump without name and
/// bytes. An instance without a file looks like an empty WAD of the kind "PWAD".
class clsWad {
  public:
    clsWad() = default;
    clsWad(const clsWad&) = delete;
    clsWad& operator=(const clsWad&) = delete;
    ~clsWad() = default;

    /// Opens an existing WAD, for writing too where the file allows it, and reads its directory. If
    /// there is no ordinary file of that name, nothing changes. A file that is no WAD, that the
    /// system refuses, or whose number of lumps is below -1 or stands for more than 2 GiB leaves
    /// the instance without a file. A number of -1 means that there is no directory.
    void OpenWad(std::string fileName);

    /// Begins a new WAD with a header that says that there is no directory yet. A file that is
    /// there is written over and not made shorter. `wadType` has 4 characters and comes back in
    /// upper case; with any other length nothing happens. A refusal leaves the instance without a
    /// file.
    platform::Outcome CreateWad(std::string fileName, std::string& wadType);
    /// Writes a lump behind the others, in an opened WAD over its directory. The name is cut to 8
    /// characters and made upper case. A failure adds nothing; a file ends below 2 GiB.
    platform::Outcome AddLump(std::string_view lumpName, std::string_view lumpData);
    /// Writes the directory behind the lumps, then the header. More lumps may follow, and then need
    /// another directory. What the file holds behind that stays there.
    platform::Outcome WriteDirectory();

    /// The lump's bytes, as many as its entry says; those that the file does not hold are 0. None
    /// for -1.
    std::vector<unsigned char> ReadLump(std::int32_t lumpNum) const;
    std::string ReadLumpString(std::int32_t lumpNum) const;
    /// Moves the file's read position to the lump; gives the C runtime's descriptor, -1 when no
    /// file is open.
    std::int32_t SeekLump(std::int32_t lumpIndex) const;

    /// Bytes that are neither header nor directory nor lumps.
    std::int32_t WastedSpace() const;
    /// 1 for "PWAD", 0 for "IWAD" and for any other tag.
    std::int32_t WadType() const;
    /// Makes it an "IWAD" with 0, a "PWAD" with 1, at the next WriteDirectory; else does nothing.
    void WadType(std::int32_t newType);
    /// The path as it was given, empty when no file is open.
    std::string WadFileName() const { return openName_; }
    /// The highest index as decimal text: one less than the header's number of lumps.
    std::string WadLumps() const { return std::to_string(lastLump_); }

    std::string LumpName(std::int32_t lump) const;
    std::int32_t LumpSize(std::int32_t lump) const { return directory_.Entry(lump).size; }
    std::int32_t LumpOffset(std::int32_t lump) const { return directory_.Entry(lump).filePos; }
    /// Length of the open file in bytes, at most 2 GiB - 1.
    std::int32_t WadSize() const;
    /// Lowest index of a lump of that name, or -1. Blanks around the argument and its case do not
    /// count; a name that the file holds in lower case is never found.
    std::int32_t NumForName(std::string_view lumpName) const;

    /// The directory itself, for walks over many names.
    const WadDirectory& Directory() const { return directory_; }

  private:
    void ResetWad();
    bool ReadHeaderAndDirectory();
    std::string Header(std::int32_t count) const;

    std::string wadTag_ = "PWAD";
    std::int32_t lastLump_ = -1;
    std::int32_t dirOffset_ = 12;  // while writing: the end of the lumps
    std::string openName_;
    platform::File file_;
    WadDirectory directory_;
};
