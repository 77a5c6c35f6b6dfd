// WAD files, the containers of the engines: a header of 12 bytes ("IWAD" or "PWAD", the number of
// lumps, the offset of the directory), a directory, and named blocks of bytes called lumps.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "wad/directory.h"

/// At most one open WAD file, closed with the instance. Lumps are addressed by their index in the
/// directory, from 0; -1 means no lump. An index that does not exist yields a lump without name and
/// bytes. Without a file the instance is an empty WAD of type "PWAD".
class clsWad {
  public:
    clsWad() = default;
    clsWad(const clsWad&) = delete;
    clsWad& operator=(const clsWad&) = delete;
    ~clsWad() = default;

    /// Opens a WAD and reads its directory, for writing too where the file allows it. No-op unless
    /// the name is that of an ordinary file. A file that is no WAD, that the system refuses to open
    /// or that claims less than -1 or more than 2^22 lumps leaves the instance without a
    /// file. A number of -1 means that there is no directory.
    void OpenWad(std::string fileName);

    /// Starts a WAD with a header that says that there is no directory yet. An existing file is
    /// overwritten and not truncated. Fails, and changes nothing, unless `wadType` has 4
    /// characters; otherwise converts it to upper case. On any other failure the instance has no
    /// file.
    [[nodiscard]] platform::Outcome CreateWad(std::string fileName, std::string& wadType);
    /// Writes a lump after the others; in an opened WAD, over its directory. The name is converted
    /// to upper case and cut to 8 characters. Fails, and adds nothing, if the lump would end at or
    /// above 2 GiB.
    [[nodiscard]] platform::Outcome AddLump(std::string_view lumpName, std::string_view lumpData);
    /// Writes the directory after the lumps, then the header. Nothing is truncated. Must be called
    /// again if more lumps are added.
    [[nodiscard]] platform::Outcome WriteDirectory();

    /// Returns as many bytes as the lump's entry says. Those past the end of the file are 0.
    std::vector<unsigned char> ReadLump(std::int32_t lumpNum) const;
    std::string ReadLumpString(std::int32_t lumpNum) const;
    /// Moves the file's read position to the lump's first byte. Returns the descriptor of the C
    /// runtime, -1 on failure.
    std::int32_t SeekLump(std::int32_t lumpIndex) const;

    /// Number of bytes in the file that belong to neither header, directory nor lumps. Negative if
    /// lumps overlap.
    std::int32_t WastedSpace() const;
    /// 1 for "PWAD"; 0 for "IWAD" and any other tag.
    std::int32_t WadType() const;
    /// Sets the type for the next WriteDirectory: 0 for "IWAD", 1 for "PWAD". Ignores other values.
    void WadType(std::int32_t newType);
    /// The path as passed in, empty if no file is open.
    std::string WadFileName() const { return openName_; }
    /// The highest index as decimal text: one less than the number of lumps.
    std::string WadLumps() const { return std::to_string(lastLump_); }

    std::string LumpName(std::int32_t lump) const { return directory_.Name(lump); }
    std::int32_t LumpSize(std::int32_t lump) const { return directory_.Entry(lump).size; }
    std::int32_t LumpOffset(std::int32_t lump) const { return directory_.Entry(lump).filePos; }
    /// Length of the open file in bytes, clamped to 2 GiB - 1.
    std::int32_t WadSize() const;
    /// Lowest index of a lump of that name, or -1. The argument is trimmed of spaces and converted
    /// to upper case; the directory's names are not, so one in lower case is never found.
    std::int32_t NumForName(std::string_view lumpName) const;

    const WadDirectory& Directory() const { return directory_; }

  private:
    static constexpr std::int32_t HeaderBytes = 12;
    static constexpr std::size_t TagLength = 4;

    void ResetWad();
    bool ReadHeaderAndDirectory();
    bool IsWritable() const { return file_.IsOpen() && dirOffset_ >= HeaderBytes; }
    std::string Header(std::int32_t count) const;

    std::string wadTag_ = "PWAD";
    std::int32_t lastLump_ = -1;
    std::int32_t dirOffset_ = HeaderBytes;  // while writing: the end of the lumps
    std::string openName_;
    platform::File file_;
    WadDirectory directory_;
};
