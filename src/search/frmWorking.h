// The progress window of long walks through the text. Whoever walks shows and updates it.
#pragma once

#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ProgressBar.h"

class frmWorking final : public Form {
    Q_OBJECT

public:
    frmWorking();

    // The keyboard stays with the window that walks, before which the window with the result then
    // stands.
    void Show();

    Label lblWorking{this, {u"lblWorking", u"One Moment Please..."}};
    ProgressBar pbWorking{this, {u"pbWorking", u"Progress"}};
};
