// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordFiles.h"

#include "core/RecordLayout.h"
#include "tests/core/RecordFilesFixture.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using namespace std::string_literals;

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

using Names = std::vector<std::string>;

template <class Record>
std::string RawBytes(const Record& record) {
    std::string bytes(sizeof record, '\0');
    std::memcpy(bytes.data(), &record, sizeof record);
    return bytes;
}

std::string RandomBytes(std::size_t count, unsigned seed) {
    std::mt19937 numbers(seed);
    std::string bytes(count, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(numbers() & 0xFFU); });
    return bytes;
}

// What a record reads as when its file has only these bytes: blanks in texts and zero bytes elsewhere.
template <std::size_t N>
std::string FilledUp(std::string bytes, const std::array<Field, N>& fields) {
    for (const Field& field : fields) {
        const std::size_t end = field.offset + field.width;
        if (bytes.size() < end) {
            bytes.resize(end, field.kind == FieldKind::Text ? ' ' : '\0');
        }
    }
    return bytes;
}

// Makes the file look a day old.
void MakeOld(const fs::path& path) {
    fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(24));
}

using RecordFilesTest = RecordFiles;

template <class T>
class TestFilesTest : public ::testing::Test {
protected:
    static constexpr bool kIsPivot = std::is_same_v<T, CenterPivotTest>;
    static constexpr std::size_t kSize = kIsPivot ? 9002 : 10930;

    [[nodiscard]] T Read() const { return ReadTest<T>(file); }

    [[nodiscard]] static std::string Filled(const std::string& bytes) {
        if constexpr (kIsPivot) {
            return FilledUp(bytes, kCenterPivotFields);
        } else {
            return FilledUp(bytes, kSolidSetFields);
        }
    }

    TemporaryFolder folder;
    fs::path file = folder / "Some test.cpd";
};

using Kinds = ::testing::Types<CenterPivotTest, SolidSetTest>;
TYPED_TEST_SUITE(TestFilesTest, Kinds);

TYPED_TEST(TestFilesTest, WritesARecordAndNothingElse) {
    TypeParam test;
    test.ClientName = "Jo Client";
    WriteTest(this->file, test);
    EXPECT_EQ(Contents(this->file).size(), this->kSize);
    EXPECT_EQ(Contents(this->file), RawBytes(test));
    EXPECT_EQ(Contents(this->file).substr(0, 36), "Jo Client                           ");
    EXPECT_EQ(this->folder.Names(), Names{"Some test.cpd"});
}

TYPED_TEST(TestFilesTest, CarriesEveryByteThroughALoadAndSave) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::string bytes = RandomBytes(this->kSize, seed);
        PutContents(this->file, bytes);
        const TypeParam test = this->Read();
        EXPECT_EQ(RawBytes(test), bytes);
        const TypeParam copy = test;
        WriteTest(this->folder / "copy", copy);
        EXPECT_EQ(Contents(this->folder / "copy"), bytes);
    }
}

TYPED_TEST(TestFilesTest, CarriesNumbersThatAreNone) {
    // Quiet and signalling NaNs of either sign, infinities, minus zero and a subnormal in every number.
    for (const std::uint32_t bits : {0x7FC00001U, 0xFFC12345U, 0x7F800001U, 0xFFA00000U, 0x7F800000U,
                                     0xFF800000U, 0x80000000U, 0x00000001U}) {
        const auto number = std::bit_cast<Single>(bits);
        TypeParam test;
        for (int i = 0; i <= 300; ++i) {
            test.Gauges[i].Sequence = number;
            test.Gauges[i].Volume = number;
            test.Gauges[i].Spare = number;
        }
        WriteTest(this->file, test);
        const TypeParam again = this->Read();
        EXPECT_EQ(RawBytes(again), RawBytes(test));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(again.Gauges[300].Spare), bits);
        const float volume = again.Gauges[1].Volume;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(volume), bits);
    }
}

TYPED_TEST(TestFilesTest, ReadsWhatAShortFileLacksAsBlanksAndZeros) {
    const std::string bytes(this->kSize, '\x7F');
    std::vector<std::size_t> sizes;
    // Every cut around the flags and behind the last measurements, a cut in each of the bytes of a Single.
    for (std::size_t size = 0; size <= this->kSize;
         size += size % 1000 < 40 || size + 160 > this->kSize ? 1U : 37U) {
        sizes.push_back(size);
    }
    for (std::size_t size = 1770; size < 1880; ++size) {
        sizes.push_back(size);
    }
    for (const std::size_t size : sizes) {
        PutContents(this->file, bytes.substr(0, size));
        ASSERT_EQ(RawBytes(this->Read()), this->Filled(bytes.substr(0, size))) << size << " bytes";
    }
}

TYPED_TEST(TestFilesTest, ReadsAnEmptyFileAsABlankRecord) {
    PutContents(this->file, "");
    EXPECT_EQ(RawBytes(this->Read()), RawBytes(TypeParam{}));
    EXPECT_EQ(RawBytes(this->Read()), this->Filled(""));
}

TYPED_TEST(TestFilesTest, ReadsTheBeginningOfALongerFile) {
    const std::string bytes = RandomBytes(this->kSize, 3);
    PutContents(this->file, bytes + "behind");
    EXPECT_EQ(RawBytes(this->Read()), bytes);
}

TYPED_TEST(TestFilesTest, KeepsWhatALongerFileHasBehindItsRecord) {
    PutContents(this->file, RandomBytes(this->kSize, 4) + "behind\0it"s);
    const TypeParam test;
    WriteTest(this->file, test);
    EXPECT_EQ(Contents(this->file), RawBytes(test) + "behind\0it"s);
    // A shorter file is filled up.
    PutContents(this->file, "short");
    WriteTest(this->file, test);
    EXPECT_EQ(Contents(this->file), RawBytes(test));
}

TYPED_TEST(TestFilesTest, RaisesForAFileThatCannotBeRead) {
    PutContents(this->folder / "file", "x");
    ExpectRunTimeError(ErrorNumber::FileNotFound,
                       [&] { (void)ReadTest<TypeParam>(this->folder / "none.cpd"); });
    ExpectRunTimeError(ErrorNumber::FileNotFound, [&] { (void)ReadTest<TypeParam>(""); });
    ExpectRunTimeError(ErrorNumber::PathNotFound,
                       [&] { (void)ReadTest<TypeParam>(this->folder / "none/x"); });
    ExpectRunTimeError(ErrorNumber::PathNotFound,
                       [&] { (void)ReadTest<TypeParam>(this->folder / "file/x"); });
    ExpectRunTimeError(ErrorNumber::PathFileAccessError,
                       [&] { (void)ReadTest<TypeParam>(this->folder.Path()); });
}

TYPED_TEST(TestFilesTest, RaisesForAFileThatCannotBeWritten) {
    PutContents(this->file, "old");
    const TypeParam test;
    ExpectRunTimeError(ErrorNumber::PathNotFound, [&] { WriteTest(this->folder / "none/x", test); });
    ExpectRunTimeError(ErrorNumber::PathNotFound, [&] { WriteTest(this->file / "x", test); });
    ExpectRunTimeError(ErrorNumber::PathFileAccessError, [&] { WriteTest(this->folder.Path(), test); });
    EXPECT_EQ(Contents(this->file), "old");
    EXPECT_EQ(this->folder.Names(), Names{"Some test.cpd"});
}

TEST_F(RecordFilesTest, TheCallerDecidesTheKindOfAFile) {
    const std::string solid = RandomBytes(10930, 5);
    const std::string pivot = RandomBytes(9002, 6);
    PutContents(folder / "a.ssd", solid);
    PutContents(folder / "a.cpd", pivot);
    EXPECT_EQ(RawBytes(ReadTest<CenterPivotTest>(folder / "a.ssd")), solid.substr(0, 9002));
    EXPECT_EQ(RawBytes(ReadTest<SolidSetTest>(folder / "a.cpd")), FilledUp(pivot, kSolidSetFields));
}

TEST_F(RecordFilesTest, SavesAnEmptyTestOfEachKind) {
    WriteTest(folder / "a.cpd", CenterPivotTest{});
    EXPECT_EQ(Contents(folder / "a.cpd"), std::string(1850, ' ') + std::string(4, '\0') +
                                              std::string(10, ' ') + std::string(2, '\0') +
                                              std::string(4096 - 1866, ' ') + std::string(4816 + 2, '\0') +
                                              std::string(60, ' ') + std::string(28, '\0'));
    WriteTest(folder / "a.ssd", SolidSetTest{});
    EXPECT_EQ(Contents(folder / "a.ssd"), std::string(1775, ' ') + std::string(2, '\0') +
                                              std::string(4867 - 1777, ' ') + std::string(6020 + 2, '\0') +
                                              std::string(41, ' '));
}

TEST_F(RecordFilesTest, CutsCommentsToTheirFields) {
    const std::string comment =
        std::string(1999, 'a') + 'b' + std::string(999, 'c') + 'd' + std::string(500, 'e');
    CenterPivotTest pivot;
    pivot.OtherComments = comment;
    WriteTest(folder / "a.cpd", pivot);
    EXPECT_EQ(Contents(folder / "a.cpd").substr(2096, 2000), std::string(1999, 'a') + 'b');
    EXPECT_EQ(Contents(folder / "a.cpd").substr(4096, 4818), std::string(4818, '\0'));
    SolidSetTest solid;
    solid.OtherComments = comment;
    WriteTest(folder / "a.ssd", solid);
    EXPECT_EQ(Contents(folder / "a.ssd").substr(1867, 3000),
              std::string(1999, 'a') + 'b' + std::string(999, 'c') + 'd');
    EXPECT_EQ(Contents(folder / "a.ssd").substr(4867, 6022), std::string(6022, '\0'));
}

TEST_F(RecordFilesTest, PutsTheIntakeRatesAtTheBeginningOfTheTail) {
    PutContents(folder / "a.cpd", std::string(9002, 'x'));
    auto test = ReadTest<CenterPivotTest>(folder / "a.cpd");
    test.MinIntake = 1.5F;
    test.MaxIntake = 2.25F;
    WriteTest(folder / "a.cpd", test);
    EXPECT_EQ(Contents(folder / "a.cpd"),
              std::string(8974, 'x') + "\x00\x00\xC0\x3F\x00\x00\x10\x40"s + std::string(20, 'x'));
}

TEST_F(RecordFilesTest, CreatesTheUserSettingsWithTheProgramDirectory) {
    LoadUserSettings();
    std::string directory = folder.Path().string();
    ASSERT_LE(directory.size(), 50U);
    directory.resize(50, ' ');
    EXPECT_EQ(Contents(settingsFile), std::string(300, ' ') + directory + "\0\0"s);
    EXPECT_EQ(RawBytes(Program().userSettings), Contents(settingsFile));
    EXPECT_EQ(folder.Names(), Names{"user.usr"});
}

TEST_F(RecordFilesTest, CutsALongProgramDirectoryTo50Characters) {
    const fs::path longer = folder / std::string(60, 'd');
    fs::create_directory(longer);
    Program().programDirectory = longer;
    LoadUserSettings();
    EXPECT_EQ(Contents(longer / "user.usr"), std::string(300, ' ') + longer.string().substr(0, 50) + "\0\0"s);
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Whole(), longer.string().substr(0, 50));
}

TEST_F(RecordFilesTest, StoresTheProgramDirectoryInTheCodePage) {
    const fs::path directory = folder / "\xC3\xA4";
    fs::create_directory(directory);
    Program().programDirectory = directory;
    LoadUserSettings();
    std::string expected = (folder / "a").string();
    expected.back() = '\xE4';
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Trimmed(), expected);
}

TEST_F(RecordFilesTest, DropsOldSettingsWhenTheFileIsGone) {
    Program().userSettings.Name = "Somebody";
    Program().userSettings.SettingsComplete = true;
    LoadUserSettings();
    EXPECT_TRUE(Program().userSettings.Name.IsBlank());
    EXPECT_FALSE(Program().userSettings.SettingsComplete.IsSet());
}

TEST_F(RecordFilesTest, RewritesTheUserSettingsAsTheyAre) {
    for (const std::string& content : {RandomBytes(352, 8), RandomBytes(352, 9) + "behind",
                                       std::string(352, ' '), std::string(352, '\0')}) {
        PutContents(settingsFile, content);
        MakeOld(settingsFile);
        const auto before = fs::last_write_time(settingsFile);
        LoadUserSettings();
        EXPECT_EQ(RawBytes(Program().userSettings), content.substr(0, 352));
        EXPECT_EQ(Contents(settingsFile), content);
        EXPECT_GT(fs::last_write_time(settingsFile), before + std::chrono::hours(1));
    }
}

TEST_F(RecordFilesTest, FillsUpShortUserSettings) {
    Program().userSettings.Company = "of before";
    for (const std::size_t size : {0U, 1U, 49U, 50U, 325U, 350U, 351U}) {
        PutContents(settingsFile, std::string(size, 's'));
        LoadUserSettings();
        const std::string expected = FilledUp(std::string(size, 's'), kUserSettingsFields);
        EXPECT_EQ(RawBytes(Program().userSettings), expected) << size;
        EXPECT_EQ(Contents(settingsFile), expected) << size;
    }
}

TEST_F(RecordFilesTest, SavesTheUserSettingsItIsGiven) {
    UserSettings settings;
    settings.Name = "Pat Tester";
    settings.SettingsComplete = true;
    PutContents(settingsFile, std::string(352, 'x') + "behind");
    SaveUserSettings(settings);
    EXPECT_EQ(Contents(settingsFile), "Pat Tester" + std::string(340, ' ') + "\xFF\xFF" + "behind");
    EXPECT_EQ(RawBytes(ReadUserSettings(folder.Path())), Contents(settingsFile).substr(0, 352));
    EXPECT_TRUE(Program().userSettings.Name.IsBlank())
        << "the program's own settings are the caller's to change";
}

TEST_F(RecordFilesTest, CreatesTheSoilTable) {
    LoadSoilTable();
    const std::string five = "\x00\x00\xA0\x40"s;
    const std::string one = "\x00\x00\x80\x3F"s;
    const std::string expected = "Sand                " + five + five +                               //
                                 "Loamy Sand          " + "\x00\x00\x40\x40"s + five +                //
                                 "Sandy Loam          " + "\x00\x00\x00\x40"s + "\x00\x00\x80\x40"s + //
                                 "Loam                " + "\x00\x00\xC0\x3F"s + "\x00\x00\x10\x40"s + //
                                 "Clay Loam           " + one + "\x00\x00\xE0\x3F"s +                 //
                                 "Loamy Clay          " + "\x00\x00\x40\x3F"s + "\x00\x00\xA0\x3F"s + //
                                 "Clay                " + one + one;
    ASSERT_EQ(expected.size(), 196U);
    EXPECT_EQ(Contents(soilFile), expected);
    EXPECT_EQ(folder.Names(), Names{"soil.dat"});
    EXPECT_EQ(RawBytes(Program().soilIntakeTable), RawBytes(SoilIntakeRow{}) + expected);
}

TEST_F(RecordFilesTest, LoadsTheSoilTableAndLeavesItsFileAlone) {
    const std::string rows = RandomBytes(196, 10);
    PutContents(soilFile, rows + "behind");
    MakeOld(soilFile);
    const auto before = fs::last_write_time(soilFile);
    LoadSoilTable();
    EXPECT_EQ(RawBytes(Program().soilIntakeTable).substr(28), rows);
    EXPECT_EQ(fs::last_write_time(soilFile), before);
    EXPECT_EQ(Contents(soilFile), rows + "behind");
}

TEST_F(RecordFilesTest, ReadsAShortSoilTableWithBlankRows) {
    for (const std::size_t size : {0U, 10U, 20U, 22U, 27U, 28U, 45U, 195U}) {
        FillDefaultSoilTable();
        PutContents(soilFile, std::string(size, 's'));
        LoadSoilTable();
        for (std::size_t row = 1; row <= 7; ++row) {
            const std::size_t begin = std::min((row - 1) * 28, size);
            const std::string present(std::min<std::size_t>(size - begin, 28), 's');
            EXPECT_EQ(RawBytes(Program().soilIntakeTable[row]), FilledUp(present, kSoilIntakeFields))
                << size << " bytes, row " << row;
        }
    }
}

TEST_F(RecordFilesTest, SavesTheSoilTable) {
    FillDefaultSoilTable();
    SoilIntakeTable& table = Program().soilIntakeTable;
    table[0].SoilName = "never written";
    table[7].SoilName = "A soil of more than twenty";
    table[7].MaxIntake = 2.25F;
    PutContents(soilFile, std::string(196, 'x') + "behind");
    SaveSoilTable();
    const std::string content = Contents(soilFile);
    EXPECT_EQ(content.size(), 202U);
    EXPECT_EQ(content.substr(0, 24), "Sand                \x00\x00\xA0\x40"s);
    EXPECT_EQ(content.substr(168), "A soil of more than \x00\x00\x80\x3F\x00\x00\x10\x40"
                                   "behind"s);
}

TEST_F(RecordFilesTest, FillsTheDefaultSoilsOverWhatTheTableHeld) {
    SoilIntakeTable& table = Program().soilIntakeTable;
    for (SoilIntakeRow& row : table) {
        row.SoilName = "Another soil";
        row.MinIntake = 9.0F;
    }
    FillDefaultSoilTable();
    EXPECT_EQ(table[1].SoilName.Trimmed(), "Sand");
    EXPECT_EQ(table[4].SoilName.Trimmed(), "Loam");
    EXPECT_EQ(table[6].MinIntake, 0.75F);
    EXPECT_EQ(table[6].MaxIntake, 1.25F);
    EXPECT_EQ(table[7].SoilName.Trimmed(), "Clay");
    EXPECT_EQ(table[7].MinIntake, 1.0F);
    EXPECT_TRUE(folder.Names().empty()) << "the table in memory only";
}

TEST_F(RecordFilesTest, ReadingCreatesNothing) {
    const UserSettings settings = ReadUserSettings(folder.Path());
    EXPECT_EQ(RawBytes(settings), std::string(350, ' ') + "\0\0"s);
    const SoilIntakeTable table = ReadSoilTable(folder.Path());
    EXPECT_EQ(table[1].SoilName.Trimmed(), "Sand");
    EXPECT_EQ(table[7].MaxIntake, 1.0F);
    EXPECT_TRUE(folder.Names().empty());
    EXPECT_TRUE(Program().soilIntakeTable[1].SoilName.IsBlank());
    PutContents(settingsFile, RandomBytes(352, 11));
    MakeOld(settingsFile);
    const auto before = fs::last_write_time(settingsFile);
    EXPECT_EQ(RawBytes(ReadUserSettings(folder.Path())), Contents(settingsFile));
    EXPECT_EQ(fs::last_write_time(settingsFile), before);
}

TEST_F(RecordFilesTest, PassesTheFailureToUseTheProgramDirectory) {
    Program().programDirectory = folder / "none";
    ExpectRunTimeError(ErrorNumber::PathNotFound, [] { LoadUserSettings(); });
    ExpectRunTimeError(ErrorNumber::PathNotFound, [] { LoadSoilTable(); });
    Program().programDirectory = folder.Path();
    fs::create_directory(settingsFile);
    fs::create_directory(soilFile);
    ExpectRunTimeError(ErrorNumber::PathFileAccessError, [] { LoadUserSettings(); });
    ExpectRunTimeError(ErrorNumber::PathFileAccessError, [] { LoadSoilTable(); });
}

} // namespace
} // namespace orvel
