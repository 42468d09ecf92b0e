#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(DiskDrive, TheKernelsNameComesBeforeTheOneThatUdevCleaned)
{
    const MadeMachine machine;
    machine.device("mmc0", "block/mmcblk0", {{"dev", "179:0"}, {"device/name", "A!2(G)"}});
    machine.link("sys/block/mmcblk0", "../class/block/mmcblk0");
    machine.file("run/udev/data/b179:0", "E:ID_NAME=A_2_G_\n");
    const char* const caption = "Select Caption from Win32_DiskDrive";
    EXPECT_THAT(machine.rows(caption), testing::ElementsAre("A!2(G)"));
    machine.file("run/udev/data/b179:0", "E:ID_NAME=A_2_G_\nE:ID_MODEL_ENC=A\\x20whole\n");
    EXPECT_THAT(machine.rows(caption), testing::ElementsAre("A whole"));
}

} // namespace
} // namespace ostrelum
