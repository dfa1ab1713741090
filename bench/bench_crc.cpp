// SPDX-License-Identifier: MIT
// CRC-32 of 64 MiB in memory, and of a file of that size with its trailer.
#include <marlin/core/crc32.h>
#include <marlin/settings/crc_file.h>

#include <cstring>
#include <memory>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <fcntl.h>
#include <libdeflate.h>

namespace {

using BENCH::RamFile;
using BENCH::Require;

constexpr std::size_t size = 64 * 1024 * 1024;
constexpr std::size_t blockSize = 256 * 1024;

std::vector<unsigned char> Bytes() {
    BENCH::Numbers numbers;
    std::vector<unsigned char> bytes(size);
    for (std::size_t at = 0; at < size; at += sizeof(std::uint64_t)) {
        const std::uint64_t number = numbers.Next();
        std::memcpy(bytes.data() + at, &number, sizeof number);
    }
    return bytes;
}

std::unique_ptr<RamFile> File() {
    auto file = std::make_unique<RamFile>("sealed");
    const std::vector<unsigned char> bytes = Bytes();
    CRCFile sealed;
    Require(sealed.Open(file->Path(), "w+b").Empty(), "CRCFile::Open");
    Require(sealed.Write(bytes.data(), 1, size) == size, "CRCFile::Write");
    sealed.Close();
    return file;
}

void CheckFile(const std::unique_ptr<RamFile>& file) {
    CRCFile sealed;
    Require(sealed.Open(file->Path(), "rb").Empty(), "CRCFile::Open");
}

void ReadFile(const std::unique_ptr<RamFile>& file) {
    const int descriptor = ::open(file->Path().c_str(), O_RDONLY | O_CLOEXEC);
    Require(descriptor >= 0, "open");
    const auto block = std::make_unique_for_overwrite<unsigned char[]>(blockSize);
    std::uint32_t value = 0;
    ssize_t got = 0;
    while ((got = ::read(descriptor, block.get(), blockSize)) > 0) {
        value = libdeflate_crc32(value, block.get(), static_cast<std::size_t>(got));
    }
    ::close(descriptor);
    benchmark::DoNotOptimize(value);
}

}  // namespace

int main(int argc, char** argv) {
    BENCH::Contest("crc_memory/marlin", Bytes, [](const std::vector<unsigned char>& bytes) {
        benchmark::DoNotOptimize(~CRC32::Update(CRC32::Start, bytes.data(), bytes.size()));
    });
    BENCH::Contest("crc_memory/libdeflate", Bytes, [](const std::vector<unsigned char>& bytes) {
        benchmark::DoNotOptimize(libdeflate_crc32(0, bytes.data(), bytes.size()));
    });
    BENCH::Contest("crc_file/marlin", File, CheckFile);
    BENCH::Contest("crc_file/libdeflate", File, ReadFile);
    return BENCH::Run(argc, argv);
}
