// SPDX-License-Identifier: MIT
#include "checksum_scan.h"
#include "families.h"
#include "input/files.h"
#include "output/json.h"
#include "output/progress.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace HOST {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};
using Stream = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void FailSystem(const std::string& path) {
    Fail(MARLINSUITE::SystemReason(path, errno));
}

Stream Open(const std::string& path, const char* mode) {
    errno = 0;
    Stream file(std::fopen(path.c_str(), mode));
    if (!file) {
        FailSystem(path);
    }
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

// Two of them differ when somebody has written the file in between.
struct Version {
    std::uintmax_t Size = 0;
    std::filesystem::file_time_type Time;

    explicit Version(const std::string& path) {
        std::error_code unknown;  // of what has no size, such as a pipe
        if (std::filesystem::is_regular_file(path, unknown)) {
            Size = std::filesystem::file_size(path, unknown);
            Time = std::filesystem::last_write_time(path, unknown);
        }
    }
    bool operator==(const Version&) const = default;
};

// `copy` gets all bytes that are read, unless it is null.
ChecksumScan Scan(std::FILE* file, const std::string& name, std::uintmax_t size, std::FILE* copy) {
    Progress progress(name, size);
    return ChecksumScan([&](char* bytes, std::size_t wanted) {
        errno = 0;
        const std::size_t count = std::fread(bytes, 1, wanted, file);
        if (std::ferror(file) != 0) {
            FailSystem(name);
        }
        if (copy && std::fwrite(bytes, 1, count, copy) != count) {
            FailSystem("standard output");
        }
        progress.Add(count);
        return count;
    });
}

ChecksumScan ScanFile(const std::string& path) {
    if (IsStandard(path)) {
        return Scan(stdin, "standard input", 0, nullptr);
    }
    const Version before(path);
    ChecksumScan scan = Scan(Open(path, "rb").get(), path, before.Size, nullptr);
    if (Version(path) != before) {
        Fail(path + ": changed while it was read");
    }
    return scan;
}

struct Finding {
    std::string_view State;
    std::string Explanation;
};

Finding Look(const ChecksumScan& scan) {
    if (scan.Size() < ChecksumScan::TrailerSize) {
        return {"truncated",
                "truncated: " + CountText(scan.Size(), "byte") + ", the trailer alone has 4"};
    }
    if (scan.IsWhole()) {
        return {"whole", "whole: " + CountText(scan.Size() - ChecksumScan::TrailerSize, "byte") +
                             ", checksum " + HexText(scan.Stored())};
    }
    if (const std::size_t missing = scan.NumMissing(); missing > 0) {
        return {"truncated", "truncated: the trailer lacks its last " + CountText(missing, "byte")};
    }
    if (const std::size_t extra = scan.NumExtra(); extra > 0) {
        return {"extra bytes", "extra bytes: a whole checksummed file of " +
                                   CountText(scan.Size() - extra, "byte") + ", and " +
                                   CountText(extra, "byte") + " behind it"};
    }
    return {"wrong checksum", "wrong checksum: the trailer says " + HexText(scan.Stored()) +
                                  ", the bytes before it give " + HexText(scan.Computed()) +
                                  "; the file was changed, cut off, or never sealed"};
}

// Looks at each file, whatever the others are; the worst exit code counts.
template <class Work>
int ForEachFile(const std::vector<std::string>& files, Work work) {
    int code = DONE;
    for (const std::string& file : files) {
        try {
            code = std::max(code, static_cast<int>(work(file)));
        } catch (const Failure& failure) {
            Report(failure.what());
            code = std::max(code, static_cast<int>(failure.Code()));
        }
    }
    return code;
}

struct CheckFiles {
    std::vector<std::string> Files;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Words("FILE", Files, "Checksummed files");
        options.Json(IsJson);
    }

    int Run(Output& output) const;
};

int CheckFiles::Run(Output& output) const {
    Json json = Json::array();
    const int code = ForEachFile(Files, [&](const std::string& file) {
        const Finding finding = Look(ScanFile(file));
        const bool isWhole = finding.State == "whole";
        json.push_back({{"file", AsUtf8(file)},
                        {"state", finding.State},
                        {"explanation", finding.Explanation}});
        if (!isWhole) {
            Report(file + ": " + finding.Explanation);
        } else if (!IsJson) {
            output.Say(file + ": " + finding.Explanation);
        }
        return isWhole ? DONE : FOUND;
    });
    if (IsJson && Files.size() > 1) {
        AppendJson(json, output);
    } else if (IsJson && !json.empty()) {
        AppendJson(json[0], output);
    }
    return code;
}

struct SealFiles {
    std::vector<std::string> Files;
    bool IsForced = false;

    void Declare(Options& options) {
        options.Words("FILE", Files, "Any files");
        options.Flag("--force", IsForced, "Though it is sealed already");
    }

    int Run(Output& output) const {
        return ForEachFile(Files, [&](const std::string& file) {
            const std::string trailer = IsStandard(file) ? SealStandard(output) : SealNamed(file);
            output.Say(file + ": sealed, checksum " + HexText(trailer));
            return DONE;
        });
    }

private:
    void RequireUnsealed(const std::string& file, const ChecksumScan& scan) const {
        if (scan.IsWhole() && !IsForced) {
            Refuse(file + ": sealed already; --force adds a second trailer");
        }
    }
    std::string SealStandard(Output& output) const;
    std::string SealNamed(const std::string& file) const;
};

// The bytes are printed as they come, for there may be any number.
std::string SealFiles::SealStandard(Output& output) const {
    output.IsFile = true;
    const ChecksumScan scan = Scan(stdin, "standard input", 0, stdout);
    RequireUnsealed("-", scan);
    output.Text += scan.Trailer();
    return scan.Trailer();
}

// The trailer is appended to the file itself: a copy of a large one would take its space twice.
std::string SealFiles::SealNamed(const std::string& file) const {
    std::error_code unknown;
    PLATFORM::FileLock lock;
    LockForChange(file, lock);
    if (std::filesystem::exists(file, unknown) && !std::filesystem::is_directory(file, unknown) &&
        !std::filesystem::is_regular_file(file, unknown)) {
        Fail(file + ": not a regular file; nothing written");
    }
    const ChecksumScan scan = ScanFile(file);
    RequireUnsealed(file, scan);
    const std::string trailer = scan.Trailer();
    const Stream opened = Open(file, "ab");
    if (std::fwrite(trailer.data(), 1, trailer.size(), opened.get()) != trailer.size()) {
        const int error = errno;
        std::filesystem::resize_file(file, scan.Size(), unknown);
        Fail(MARLINSUITE::SystemReason(file, error));
    }
    return trailer;
}

}  // namespace

void AddFile(Family& program) {
    Family file = program.AddFamily("file", "Checksummed files");
    file.Add<CheckFiles>("check", "Compare files with their trailers");
    file.Add<SealFiles>("seal", "Append checksum trailers");
}

}  // namespace HOST
