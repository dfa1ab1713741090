// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/input.h"
#include "output/json.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/crc32.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace HOST {

namespace {

constexpr std::size_t trailerSize = 4;
constexpr std::size_t largestFile = 0x7FF00000U;  // positions in checksummed files are 32-bit

std::array<char, trailerSize> TrailerOf(std::string_view payload) {
    const unsigned int crc = ~CRC32::Update(CRC32::Start, payload.data(), payload.size());
    std::array<char, trailerSize> trailer{};
    for (std::size_t i = 0; i < trailerSize; ++i) {
        trailer[i] = static_cast<char>(static_cast<unsigned char>(crc >> (8 * i)));
    }
    return trailer;
}

bool EndsInTrailer(std::string_view bytes, std::size_t length) {
    const std::string_view payload = bytes.substr(0, bytes.size() - length);
    const auto trailer = TrailerOf(payload);
    return bytes.substr(payload.size()) == std::string_view(trailer.data(), length);
}

bool IsWhole(std::string_view bytes) {
    return bytes.size() >= trailerSize && EndsInTrailer(bytes, trailerSize);
}

// Returns how many bytes of the trailer's end are missing, or 0 when that does not show. A single
// fitting byte would prove nothing: every 256th file has it.
std::size_t NumMissing(std::string_view bytes) {
    for (const std::size_t kept : {3U, 2U}) {
        if (bytes.size() > kept && EndsInTrailer(bytes, kept)) {
            return trailerSize - kept;
        }
    }
    return 0;
}

// Returns how many bytes follow the longest whole checksummed file at the start, or 0 for none.
// The search ends early, since among many bytes some would fit by chance, and leaves out an empty
// payload, whose trailer is four zero bytes.
std::size_t NumExtra(std::string_view bytes) {
    constexpr std::size_t searched = 64 * 1024;
    if (bytes.size() <= trailerSize + 1) {
        return 0;
    }
    const std::size_t last = bytes.size() - trailerSize - 1;  // of the possible payload sizes
    std::size_t size = std::max<std::size_t>(1, last > searched ? last - searched : 0);
    unsigned int state = CRC32::Update(CRC32::Start, bytes.data(), size);
    std::size_t extra = 0;
    for (; size <= last; ++size) {
        const unsigned int crc = ~state;
        std::size_t same = 0;
        while (same < trailerSize &&
               static_cast<unsigned char>(bytes[size + same]) == (crc >> (8 * same) & 0xFFU)) {
            ++same;
        }
        if (same == trailerSize) {
            extra = bytes.size() - size - trailerSize;
        }
        state = CRC32::Update(state, bytes.data() + size, 1);
    }
    return extra;
}

std::string HexText(std::string_view littleEndian) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = littleEndian.size(); i-- > 0;) {
        const auto byte = static_cast<unsigned char>(littleEndian[i]);
        text += digits[byte >> 4U];
        text += digits[byte & 0x0FU];
    }
    return text;
}

struct Finding {
    std::string_view State;
    std::string Explanation;
};

std::string MismatchText(std::string_view bytes) {
    const std::string_view stored = bytes.substr(bytes.size() - trailerSize);
    const auto computed = TrailerOf(bytes.substr(0, bytes.size() - trailerSize));
    return "wrong checksum: the trailer says " + HexText(stored) + ", the bytes before it give " +
           HexText({computed.data(), computed.size()}) +
           "; the file was changed, cut off, or never sealed";
}

Finding Look(std::string_view bytes) {
    if (bytes.size() < trailerSize) {
        return {"truncated",
                "truncated: " + CountText(bytes.size(), "byte") + ", the trailer alone has 4"};
    }
    if (IsWhole(bytes)) {
        return {"whole", "whole: " + CountText(bytes.size() - trailerSize, "byte") + ", checksum " +
                             HexText(bytes.substr(bytes.size() - trailerSize))};
    }
    if (const std::size_t missing = NumMissing(bytes); missing > 0) {
        return {"truncated", "truncated: the trailer lacks its last " + CountText(missing, "byte")};
    }
    if (const std::size_t extra = NumExtra(bytes); extra > 0) {
        return {"extra bytes", "extra bytes: a whole checksummed file of " +
                                   CountText(bytes.size() - extra, "byte") + ", and " +
                                   CountText(extra, "byte") + " behind it"};
    }
    return {"wrong checksum", MismatchText(bytes)};
}

std::string ReadBytes(const std::string& path) {
    std::string bytes;
    Require(MARLINSUITE::ReadFile(path, bytes, largestFile));
    return bytes;
}

struct CheckFile {
    std::string File;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Checksummed file");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        const Finding finding = Look(ReadBytes(File));
        const bool isWhole = finding.State == "whole";
        if (IsJson) {
            AppendJson({{"file", AsUtf8(File)},
                        {"state", finding.State},
                        {"explanation", finding.Explanation}},
                       output);
        } else if (isWhole) {
            output.Text += Printable(AsUtf8(File)) + ": " + finding.Explanation + "\n";
        }
        if (!isWhole) {
            Report(File + ": " + finding.Explanation);
        }
        return isWhole ? DONE : FOUND;
    }
};

struct SealFile {
    std::string File;
    bool IsForced = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Any file");
        options.Flag("--force", IsForced, "Though it is sealed already");
    }

    int Run(Output& output) const {
        std::string bytes = ReadBytes(File);
        if (IsWhole(bytes) && !IsForced) {
            Refuse(File + ": sealed already; --force adds a second trailer");
        }
        const auto trailer = TrailerOf(bytes);
        bytes.append(trailer.data(), trailer.size());
        Require(MARLINSUITE::ReplaceFile(File, bytes));
        output.Text += Printable(AsUtf8(File)) + ": sealed, checksum " +
                       HexText({trailer.data(), trailer.size()}) + "\n";
        return DONE;
    }
};

}  // namespace

void AddFile(Family& program) {
    Family file = program.AddFamily("file", "Checksummed files");
    file.Add<CheckFile>("check", "Compare a file with its trailer");
    file.Add<SealFile>("seal", "Append a checksum trailer");
}

}  // namespace HOST
