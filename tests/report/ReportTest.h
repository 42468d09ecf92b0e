#pragma once

#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "report/Report.h"
#include "tests/report/ReportProgram.h"

#include <gtest/gtest.h>

namespace ostrelum {

/// The program on the recorded machine, loaded and not shown.
class ReportTest : public ::testing::Test, public ReportProgram {
protected:
    ReportTest() { load_program(); }

    static void click(std::string_view control) { F2.raise(control, {.kind = EventKind::Click}); }

    /// What follows a label in a section of the plain text document; "(none)" for none.
    static std::string row(const std::string& section, const std::string& label)
    {
        const std::string bullet = "· " + label + " ";
        const auto begin = F2.Tb4.find(" " + section + "\r\n-----");
        const auto found = F2.Tb4.find(bullet, begin);
        if (begin == std::string::npos || found == std::string::npos)
            return "(none)";
        const auto value = found + bullet.size();
        return F2.Tb4.substr(value, F2.Tb4.find("\r\n", value) - value);
    }
};

/// Does something whenever a form is painted at once, as it is before each step of a report.
class WatchingToolkit : public MemoryToolkit {
public:
    explicit WatchingToolkit(std::function<void()> watch) : watch_(std::move(watch))
    {
        platform.toolkit = this;
    }
    void Refresh(Form&) override { watch_(); }

private:
    std::function<void()> watch_;
};

} // namespace ostrelum
