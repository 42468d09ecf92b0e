#pragma once

#include "platform/toolkit/Form.h"

#include <memory>

namespace ostrelum::inline frame {

/// A form that is never shown: it stores the pictures of the pages, the alerts and the report
/// dialog.
class PictureForm : public Form {
public:
    PictureForm();

    PictureBox Sec1, Sec2, Sec3, Sec4, Sec5, Sec6, Sec7, Sec8, Sec9, Sec10;
    /// Sections 11 and 12 when media were found, and when none were.
    PictureBox Sec11a, Sec11b, Sec12a, Sec12b;
    PictureBox Sec13;
    /// The customise and the about panel.
    PictureBox IOpc, IAC;
    /// Alerts: all is well, information, warning.
    PictureBox Ok, Info, Alerta;
    /// The report is finished.
    PictureBox Made;
};

/// F6 comes into being at the first use of one of its pictures.
class FirstUse {
public:
    PictureForm& get();
    PictureForm* operator->() { return &get(); }
    bool created() const { return form_ != nullptr; }
    void reset() { form_.reset(); }

private:
    std::unique_ptr<PictureForm> form_;
};

inline FirstUse F6;

} // namespace ostrelum::inline frame
