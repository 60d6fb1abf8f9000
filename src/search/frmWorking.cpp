#include "search/frmWorking.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmWorking::frmWorking()
    : Form(u"frmWorking"_s) {
    setCaption(u"Working..."_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addWidget(&lblWorking);
    column->addWidget(&pbWorking);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void frmWorking::Show() {
    Load();
    show();
}
