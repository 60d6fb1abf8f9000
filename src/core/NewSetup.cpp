#include "core/NewSetup.h"

#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/clsPopulate.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

void Main() {
    DoEvents();
    InitGlobals();
    auto& window = form<frmMain>();
    window.Load();
    static clsPopulate populate;
    populate.PopulateTree(window.tree);
    window.Show();
    attempt([] { rsBible.Seek(u"="_s, 40, 1, 1); });
    // Paint and focus events of the new window pass while the composer is still held.
    DoEvents();
    StartingUp = Off;
    attempt([&] { window.UpDateBibleText(true); });
}
