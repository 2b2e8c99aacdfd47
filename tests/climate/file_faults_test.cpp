// Climate data files that are missing, damaged or no files at all, and names of every kind.
#include <gtest/gtest.h>

#include <fstream>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "climate/library_copy.h"
#include "literal/climate_file.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

constexpr float untouched = -77.0f;

using Records = std::array<float, 132>;

// Set 1 in the first half of the year and set 2 in the second, at rising percentages.
Records request() {
    Records records;
    records.fill(untouched);
    for (std::size_t month = 0; month < 12; ++month) {
        records[11 * month + 9] = month < 6 ? 1.0f : 2.0f;
        records[11 * month + 10] = static_cast<float>(5 + 8 * month);
    }
    return records;
}

class FaultyFile : public testing::Test {
  protected:
    FaultyFile() {
        image.fill(1, random);
        image.save(name);
    }
    Records read(const LibraryCopy& from, const std::string& file) const {
        Records records = request();
        from.CLBNF0(file, 1, 0, records);
        return records;
    }
    bool is_filled(const Records& records, int month) const {
        return records[11 * static_cast<std::size_t>(month - 1)] != untouched;
    }
    TemporaryFolder folder;
    std::string name = (folder.path() / "stations.climate").string();
    Random random{11};
    ClimateFileImage image{1, 1};
    LibraryCopy library;
};

TEST_F(FaultyFile, TruncatedAnywhereGivesTheMonthsBeforeTheEnd) {
    for (auto size = image.bytes().size(); size-- > 0;) {
        if ((size + 1) % record_bytes > 2) continue;  // about the ends of records
        std::filesystem::resize_file(name, size);
        Records literally = request();
        literal::ClimateFile<literal::StdioFile>().CLBNF0(name, 1, 0, literally.data());
        ASSERT_EQ(read(LibraryCopy(), name), literally) << size;
    }
}

#ifdef __linux__
// Its first bytes are no memory of the process: reading them is an error, again and again.
TEST_F(FaultyFile, ReadErrorsEndTheCall) { EXPECT_EQ(read(library, "/proc/self/mem"), request()); }
#endif

TEST_F(FaultyFile, WhatIsNoFileIsNotRead) {
    const auto file = [&](const char* called) { return (folder.path() / called).string(); };
    std::filesystem::create_directory(file("folder"));
    std::vector<std::string> names = {
        file("none"), file("folder"),        file("none") + "/none",   name + "/", "", " ",
        "/",          std::string(300, 'x'), std::string(1 << 20, 'x')};
#ifdef _WIN32
    for (const char* device : {"NUL", "CON", "COM1", "\\\\.\\pipe\\none", "\\\\.\\C:"})
        names.emplace_back(device);
#else
    // The longest name there can be, and one more character.
    std::string longest = name;
    longest.insert(folder.path().string().size(), 4095 - name.size(), '/');
    EXPECT_TRUE(is_filled(read(library, longest), 1));
    names.push_back(longest + "x");
    mkfifo(file("pipe").c_str(), 0600);
    for (const char* device : {"/dev/zero", "/dev/null", "/dev/tty", "/dev/urandom"})
        names.emplace_back(device);
    names.push_back(file("pipe"));
    if (geteuid() != 0) {
        image.save(file("secret"));
        chmod(file("secret").c_str(), 0);
        names.push_back(file("secret"));
    }
#endif
    for (const std::string& no_file : names) {
        EXPECT_EQ(read(library, no_file), request()) << no_file;
        // Nor does it take the place of the file on the unit.
        const Records records = read(library, name);
        read(library, no_file);
        std::array<float, 12> values{};
        library.CLBNF3(13, values);
        EXPECT_EQ(values[4], image.value(1, 12, 5)) << no_file;
        EXPECT_TRUE(is_filled(records, 12));
    }
}

TEST_F(FaultyFile, TrailingBlanksOfANameDoNotCount) {
    const Records whole = read(library, name);
    EXPECT_TRUE(is_filled(whole, 1));
    for (const std::size_t blanks : {1, 3, 5000, 1 << 20})
        EXPECT_EQ(read(library, name + std::string(blanks, ' ')), whole) << blanks;
    // One without a NUL, as of a fixed length, is read up to the longest name and no further.
    std::vector<char> fixed(5000, 'x');
    std::fill_n(std::ranges::copy(name, fixed.begin()).out, 4096 - name.size(), ' ');
    Records records = request();
    library.CLBNF0(fixed.data(), 1, 0, records);
    EXPECT_EQ(records, whole);
    const auto with_blanks = folder.path() / " two  words";
    image.save(with_blanks);
    EXPECT_EQ(read(library, with_blanks.string() + " "), whole);
}

// On Windows too, whatever its code page; elsewhere any bytes are a name.
TEST_F(FaultyFile, NamesAreUtf8) {
    const auto inner = folder.path() / u8"Ötztal 冬";
    std::filesystem::create_directory(inner);
    image.save(inner / u8"Zürich – Böen.dat");
    const std::string file = "Zürich – Böen.dat";
    const Records whole = read(library, name);
    EXPECT_EQ(read(LibraryCopy(), folder.path().string() + "/Ötztal 冬/" + file), whole);
    // Later calls find it under its full name.
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(inner);
    EXPECT_EQ(read(library, file + "  "), whole);
    std::filesystem::current_path(before);
    std::array<float, 12> values{};
    library.CLBNF3(100, values);
    EXPECT_EQ(values[4], image.value(1, 99, 5));
    const std::string latin = folder.path().string() + "/caf\xe9";
#ifdef _WIN32
    for (const std::string& no_file :
         {latin, name + "\xc0\x80", name + "\xed\xa0\x80", name + "\xc3"})
        EXPECT_EQ(read(library, no_file), request()) << no_file;
#else
    image.save(latin);
    EXPECT_EQ(read(library, latin), whole);
#endif
}

#ifdef __linux__
std::ptrdiff_t open_handles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator{});
}

TEST_F(FaultyFile, NoHandleStaysOpen) {
    mkfifo((name + "-pipe").c_str(), 0600);
    const auto before = open_handles();
    for (const auto* damage : {"", "-none", "-pipe", "/"}) {
        read(library, name + damage);
        std::array<float, 12> values;
        library.CLBNF3(100, values);
        EXPECT_EQ(open_handles(), before) << damage;
    }
    std::filesystem::resize_file(name, 5000);
    read(library, name);
    std::filesystem::remove(name);
    read(library, name);
    EXPECT_EQ(open_handles(), before);
}

TEST_F(FaultyFile, OffsetsGoBeyondFourGigabytes) {
    // A sparse file: one station, and nothing before it but the header.
    constexpr int station = 1'000'000;
    const auto begin = 19 * std::int64_t{station} - 15;
    std::ofstream file(name, std::ios::binary | std::ios::in);
    file.seekp((begin - 1) * record_bytes);
    file.write(reinterpret_cast<const char*>(&image.bytes()[3 * record_bytes]), 19 * record_bytes);
    file.close();
    Records records = request();
    library.CLBNF0(name, station, 0, records);
    EXPECT_EQ(records, read(library, name));
    EXPECT_TRUE(is_filled(records, 12));
}
#endif

}  // namespace
