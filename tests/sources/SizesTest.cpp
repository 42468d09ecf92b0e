#include "sources/Sizes.h"

#include "tests/Split.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(SizeWhole, ChangesItsUnitAtFourDigits)
{
    for (const auto& [megabytes, text] :
         pairs("0=0 MB|999=999 MB|1000=0 GB|1023=0 GB|1024=1 GB|1536=1 GB|2047=1 GB|2048=2 GB|"
               "-99=-99 MB|-100=-1 GB|2147483647=2097151 GB"))
        EXPECT_EQ(SizeWhole(std::stoi(megabytes)), text) << megabytes;
}

/// The first and the last number of each digit count that changes the form; nothing behind the sign
/// is no form.
const std::pair<SizeUse, const char*> borders[] = {
    {SizeUse::SummaryFree,
     "9=|10=10 MB|999=999 MB|1000=0.9 GB|1024=1 GB|1234=1.2 GB|9999=9.7 GB|10000=9.76 GB|"
     "12345=12.0 GB|99999=97.6 GB|100000=97.65 GB|999999=976.5 GB|1000000=0.95 TB|"
     "9999999=9.53 TB|10000000=|2147483647="},
    {SizeUse::SummaryFreeBeyond,
     "0=0 MB|9=9 MB|10=|9999999=|10000000=9.536 TB|99999999=95.36 TB|100000000=95.367 TB|"
     "999999999=953.67 TB|1000000000=953.674 TB|2147483647=2047.99 TB"},
    {SizeUse::DriveCapacity,
     "9=|999=|1000=0 MB|999999=976 MB|1000000=0.9 GB|2097152=2 GB|9999999=9.5 GB|"
     "10000000=9.53 GB|97650000=93.1 GB|99999999=95.3 GB|100000000=95.36 GB|"
     "488386584=465.7 GB|999999999=953.6 GB|1000000000=953.67 GB|2147483647=2047.9 GB|"
     "-2147483647="},
    {SizeUse::DriveFree, "99=|100=100 KB|999=999 KB|1000=0 MB|999999=976 MB|1000000=0.9 GB"},
    {SizeUse::DriveUsed, "0=0 KB|99=99 KB|999=999 KB|-99=-99 KB|1000=0 MB|-100=-1 MB|-1000=-1 MB"},
    {SizeUse::RemovableCapacity,
     "9999=|10000=9.76 MB|99999=97.6 MB|100000=97.65 MB|999999=976.5 MB|1000000=0.95 GB|"
     "9999999=9.53 GB|10000000=9.536 GB|99999999=95.36 GB|100000000=95.367 GB|"
     "999999999=953.67 GB|1000000000=0.93 TB|2147483647=1.99 TB|-2147483647="},
    {SizeUse::RemovableFree, "0=0 KB|999=999 KB|1000=0.9 MB|9999=9.7 MB|10000=9.76 MB"},
    {SizeUse::RemovableUsed, "0=0 KB|999=999 KB|1000=0.9 MB|2147483647=1.99 TB"},
    {SizeUse::DiscCapacity,
     "9=9 KB|999=999 KB|1000=0.9 MB|9999=9.7 MB|10000=9.76 MB|716800=700 MB|999999=976.5 MB|"
     "1000000=0.95 GB|9999999=9.53 GB|10000000=9.536 GB|99999999=95.36 GB|100000000=|"
     "1000000000="},
};

TEST(SizeByDigits, ChangesItsFormAtEachBorder)
{
    for (const auto& [use, row] : borders) {
        for (const auto& [size, text] : pairs(row))
            EXPECT_EQ(SizeByDigits(use, std::stoi(size), "."), text)
                << static_cast<int>(use) << ", " << size;
    }
}

TEST(SizeByDigits, CutsByCharactersWhateverTheDecimalSign)
{
    EXPECT_EQ(SizeByDigits(SizeUse::SummaryFree, 1234, ","), "1,2 GB");
    EXPECT_EQ(SizeByDigits(SizeUse::SummaryFree, 1234, "\u066B"), "1\u066B2 GB");
}

} // namespace
} // namespace ostrelum
