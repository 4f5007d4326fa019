// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Arithmetic.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <limits>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;

constexpr long double kInfinity = std::numeric_limits<long double>::infinity();
constexpr long double kNaN = std::numeric_limits<long double>::quiet_NaN();

TEST(Arithmetic, StoresASingleRoundedOnceWithTiesToEven) {
    struct Row {
        long double value;
        float stored;
    };
    static constexpr std::array kRows = {
        Row{0.0L, 0.0F},
        Row{0.1L, 0.1F},
        Row{-32.5L, -32.5F},
        Row{0x1.000001p0L, 1.0F},
        Row{0x1.000003p0L, 0x1.000004p0F},
        Row{-0x1.000001p0L, -1.0F},
        // Just above a tie, by less than a double could tell.
        Row{0x1.000001000000001p0L, 0x1.000002p0F},
        // Just below one.
        Row{0x1.000002fffffffffep0L, 0x1.000002p0F},
        Row{16777217.0L, 16777216.0F},
        Row{16777219.0L, 16777220.0F},
        Row{0x1.fffffep127L, FLT_MAX},
        Row{0x1.fffffefffffffffep127L, FLT_MAX},
        Row{-0x1.fffffefffffffffep127L, -FLT_MAX},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(StoreSingle(row.value), row.stored) << row.value;
    }
}

TEST(Arithmetic, StoresADoubleRoundedOnceWithTiesToEven) {
    struct Row {
        long double value;
        double stored;
    };
    static constexpr std::array kRows = {
        Row{0.0L, 0.0},
        Row{0.1L, 0.1},
        Row{0x1.00000000000008p0L, 1.0},
        Row{0x1.00000000000018p0L, 0x1.0000000000002p0},
        Row{-0x1.00000000000018p0L, -0x1.0000000000002p0},
        Row{0x1.0000000000000802p0L, 0x1.0000000000001p0},
        Row{0x1.fffffffffffffp1023L, DBL_MAX},
        Row{0x1.fffffffffffff7fep1023L, DBL_MAX},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(StoreDouble(row.value), row.stored) << row.value;
    }
}

TEST(Arithmetic, StoresWhatIsTooSmallForASubnormalAsZero) {
    EXPECT_EQ(StoreSingle(0x1p-150L), 0.0F);
    EXPECT_EQ(StoreSingle(-0x1p-150L), 0.0F);
    EXPECT_EQ(StoreSingle(1e-4000L), 0.0F);
    EXPECT_EQ(StoreSingle(0x1.8p-150L), 0x1p-149F);
    EXPECT_EQ(StoreSingle(0x1p-149L), 0x1p-149F);
    EXPECT_EQ(StoreDouble(0x1p-1075L), 0.0);
    EXPECT_EQ(StoreDouble(-1e-4000L), 0.0);
    EXPECT_EQ(StoreDouble(0x1.8p-1075L), 0x1p-1074);
    EXPECT_EQ(StoreDouble(0x1p-1074L), 0x1p-1074);
}

TEST(Arithmetic, StoringWhatIsNotFiniteOrTooLargeOverflows) {
    for (const long double value : {0x1.ffffffp127L, 0x1p128L, 1e39L, 1e400L, 1e4900L, kInfinity, kNaN}) {
        SCOPED_TRACE(value);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(StoreSingle(value)); });
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(StoreSingle(-value)); });
    }
    for (const long double value : {0x1.fffffffffffff8p1023L, 0x1p1024L, 1e4900L, kInfinity, kNaN}) {
        SCOPED_TRACE(value);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(StoreDouble(value)); });
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(StoreDouble(-value)); });
    }
}

TEST(Arithmetic, ASumOfSinglesIsASingle) {
    EXPECT_EQ(AddSingles(16777216.0F, 1.0F), 16777216.0F);
    EXPECT_EQ(AddSingles(16777216.0F, 3.0F), 16777220.0F);
    EXPECT_EQ(AddSingles(1.5F, -4.0F), -2.5F);
    ExpectRunTimeError(ErrorNumber::Overflow, [] { static_cast<void>(AddSingles(FLT_MAX, FLT_MAX)); });
}

TEST(Arithmetic, DividesInExtendedPrecision) {
    EXPECT_EQ(Divide(7, 2), 3.5L);
    EXPECT_EQ(Divide(0, 5), 0.0L);
    EXPECT_EQ(Divide(-1, 4), -0.25L);
    EXPECT_EQ(Divide(1, 3), 0xa.aaaaaaaaaaaaaabp-5L);
}

TEST(Arithmetic, DividingByZeroIsAnErrorOfItsOwnExceptForZero) {
    for (const long double zero : {0.0L, -0.0L}) {
        for (const long double dividend : {1.0L, -1.0L, 1e-4900L, 1e4900L}) {
            SCOPED_TRACE(dividend);
            ExpectRunTimeError(ErrorNumber::DivisionByZero,
                               [&] { static_cast<void>(Divide(dividend, zero)); });
        }
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(Divide(0.0L, zero)); });
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(Divide(-0.0L, zero)); });
    }
}

TEST(Arithmetic, DividingWhatIsNotFiniteOrByItOverflows) {
    for (const long double value : {kInfinity, -kInfinity, kNaN}) {
        for (const long double finite : {0.0L, 1.0L, -1.0L}) {
            SCOPED_TRACE(finite);
            ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(Divide(value, finite)); });
            ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(Divide(finite, value)); });
        }
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(Divide(value, value)); });
    }
}

TEST(Arithmetic, RoundsHalvesToEven) {
    struct Row {
        long double value;
        int rounded;
    };
    static constexpr std::array kRows = {
        Row{0.0L, 0},    Row{0.49L, 0},  Row{0.5L, 0},       Row{0.5000000000000000001L, 1},
        Row{0.51L, 1},   Row{1.5L, 2},   Row{2.5L, 2},       Row{3.5L, 4},
        Row{-0.5L, 0},   Row{-1.5L, -2}, Row{-2.5L, -2},     Row{-3.5L, -4},
        Row{2.4999L, 2}, Row{2.501L, 3}, Row{1000.5L, 1000},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(RoundToInteger(row.value), row.rounded) << row.value;
        EXPECT_EQ(RoundToLong(row.value), row.rounded) << row.value;
    }
}

TEST(Arithmetic, RoundsIntoAnIntegerOnlyWithinItsBounds) {
    EXPECT_EQ(RoundToInteger(32766.5L), 32766);
    EXPECT_EQ(RoundToInteger(32767.499L), 32767);
    EXPECT_EQ(RoundToInteger(-32768.5L), -32768);
    for (const long double value :
         {32767.5L, 32768.0L, -32768.50001L, -32769.0L, 1e30L, kInfinity, -kInfinity, kNaN}) {
        SCOPED_TRACE(value);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(RoundToInteger(value)); });
    }
}

TEST(Arithmetic, RoundsIntoALongOnlyWithinItsBounds) {
    EXPECT_EQ(RoundToLong(32767.5L), 32768);
    EXPECT_EQ(RoundToLong(2147483646.5L), 2147483646);
    EXPECT_EQ(RoundToLong(2147483647.499L), 2147483647);
    EXPECT_EQ(RoundToLong(-2147483648.5L), std::numeric_limits<std::int32_t>::min());
    for (const long double value : {2147483647.5L, 2147483648.0L, -2147483648.501L, -2147483649.0L, 1e30L,
                                    kInfinity, -kInfinity, kNaN}) {
        SCOPED_TRACE(value);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(RoundToLong(value)); });
    }
}

TEST(Arithmetic, HalfOfANumberGoesToEven) {
    const std::array<std::size_t, 8> halves = {0, 0, 1, 2, 2, 2, 3, 4};
    for (std::size_t i = 0; i < halves.size(); ++i) {
        EXPECT_EQ(HalfRoundedToEven(i), halves.at(i)) << i;
    }
    EXPECT_EQ(HalfRoundedToEven(298), 149U);
}

} // namespace
} // namespace orvel
