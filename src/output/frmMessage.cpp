#include "output/frmMessage.h"

#include "basic/Error.h"
#include "controls/SendKeys.h"
#include "desktop/Desktop.h"
#include "prefs/Internet.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString PlaceSection = u"options"_s;
constexpr int TwipsInPixel = 15;

const QList<KeyedButton> viewerButtons = {
    {u"email"_s, u"&EMail"_s, u"EMail this text"_s, u":/icons/tools/mail.svg"_s},
    {u"Print"_s, u"&Print"_s, u"Print the highlighted text"_s, u":/icons/tools/print.svg"_s},
    {u"Copy"_s, u"&Copy"_s, u"Copy the highlighted text"_s, u":/icons/tools/copy.svg"_s},
    {u"Exit"_s, u"E&xit"_s, u"Close this window"_s, u":/icons/viewer/exit.svg"_s},
};

// A stored number of twips, in pixels. What is not there, no number, or none that a screen could
// have, is the standard.
int storedPixels(const QString& key, int standard) {
    constexpr double MostTwips = 1e6;
    bool isNumber = false;
    const double twipCount =
        GetSetting(QCoreApplication::applicationName(), PlaceSection, key).toDouble(&isNumber);
    const bool usable = isNumber && std::abs(twipCount) <= MostTwips;
    return twips(usable ? static_cast<int>(twipCount) : standard);
}

void storePixels(const QString& key, int pixels) {
    SaveSetting(
        QCoreApplication::applicationName(), PlaceSection, key,
        QString::number(pixels * TwipsInPixel));
}

QRect storedPlace() {
    return {
        storedPixels(u"mMainLeft"_s, 500), storedPixels(u"mMaintop"_s, 500),
        storedPixels(u"mMainwidth"_s, 7500), storedPixels(u"mMainheight"_s, 7500)};
}

// The frame that the system puts around a window is known only when the window shows.
QSize likelyFrame(const QStyle& style) {
    const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return {2 * side, style.pixelMetric(QStyle::PM_TitleBarHeight) + 2 * side};
}

// The screens may be others, or fewer, than when the place was stored.
QRect movedOntoScreen(QRect place, const QSize& frame) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    room.setSize(room.size() - frame);
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
    return place;
}

} // namespace

frmMessage::frmMessage()
    : Form(u"frmMessage"_s)
    , Toolbar(this, {u"Toolbar"}, viewerButtons) {
    setCaption(u"Lumenvia"_s);
    rtfMessage.setLocked(true);
    layOut();
    on(Toolbar, &ToolBar::ButtonClick, this, &frmMessage::Toolbar_ButtonClick);
}

void frmMessage::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(&Toolbar);
    column->addWidget(&rtfMessage, 1);
    column->addWidget(&status);
    rtfMessage.setFocus();
}

void frmMessage::Form_Load() {
    rtfMessage.setFontName(u"Times New Roman"_s);
    QRect place = storedPlace();
    place.setSize(place.size().expandedTo(minimumSizeHint()));
    place = movedOntoScreen(place, likelyFrame(*style()));
    resize(place.size());
    move(place.topLeft());
}

void frmMessage::Form_Unload() {
    const bool normal = !isMaximized() && !isMinimized() && !isFullScreen();
    const QRect place = normal ? QRect(pos(), size()) : normalGeometry();
    storePixels(u"mMainLeft"_s, place.left());
    storePixels(u"mMainTop"_s, place.top());
    storePixels(u"mMainWidth"_s, place.width());
    storePixels(u"mMainHeight"_s, place.height());
}

void frmMessage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Toolbar.Buttons(u"Exit"_s).setValue(true);
    else
        Form::keyPressEvent(event);
}

void frmMessage::Toolbar_ButtonClick(const QString& Key) {
    if (Key == u"email")
        sendByMail();
    else if (Key == u"Print")
        attempt([this] { print(); });
    else if (Key == u"Copy")
        copy();
    else if (Key == u"Exit")
        Unload();
}

void frmMessage::sendByMail() {
    const QString text = rtfMessage.Text();
    Unload();
    EmailText(text);
}

void frmMessage::print() {
    if (rtfMessage.SelLength() == 0) {
        MsgBox(
            u"Please highlight what you'd like to print. (Press CTRL+A to highlight all)."_s,
            MessageIcon::Information);
        rtfMessage.SetFocus();
        return;
    }
    const std::unique_ptr<QPagedPaintDevice> printer = common.ShowPrinter();
    if (printer && rtfMessage.SelLength() > 0)
        rtfMessage.SelPrint(*printer);
}

void frmMessage::copy() {
    rtfMessage.SetFocus();
    sendKey(Qt::Key_C, Qt::ControlModifier);
}
