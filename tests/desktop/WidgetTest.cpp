#include "desktop/WidgetTest.h"

#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "control/Children.h"
#include "desktop/DesktopBench.h"
#include "desktop/QtClock.h"
#include "desktop/QtScreen.h"
#include "desktop/Twips.h"
#include "support/SleepLog.h"

namespace ostrel::test {

namespace {

/// Where a child stands on the control, in twips.
Bounds PlaceOf(const Child& child) {
    Bounds place{child.left, child.top, child.width, child.height};
    for (const Child* around = child.parent; around && around->parent; around = around->parent) {
        place.left += around->left;
        place.top += around->top;
    }
    return place;
}

/// The children whose widgets do not show what the model says.
Text Differences(DesktopBench& bench) {
    Text wrong;
    const desktop::Twips twips(bench.widget);
    for (const Child* child : bench.Web().View().All()) {
        QWidget* widget = bench.Child(child->name);
        // The hidden ones of the model that only lend a size have no widget.
        if (!widget) {
            if (child->Shown()) wrong += child->name + " has no widget; ";
            continue;
        }
        if (widget->isVisible() != child->Shown()) wrong += child->name + " is wrongly shown or hidden; ";
        if (widget->isEnabled() != child->enabled) wrong += child->name + " is wrongly enabled; ";
        if (!child->Shown()) continue;
        const Bounds place = PlaceOf(*child);
        const QPoint corner = widget->mapTo(&bench.widget, QPoint(0, 0));
        const QRect model = twips.Rectangle(place.left, place.top, place.width, place.height);
        // Rounding inside the parents may add up to a pixel.
        if ((corner - model.topLeft()).manhattanLength() > 1 || qAbs(widget->width() - model.width()) > 1 ||
            qAbs(widget->height() - model.height()) > 1)
            wrong += child->name + " stands elsewhere; ";
    }
    return wrong;
}

} // namespace

void WidgetTest::RectanglesAreThoseOfTheLayout_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("buttonWidth");
    QTest::addColumn<bool>("address");
    QTest::newRow("default") << "" << 800 << 0 << false;
    QTest::newRow("address line") << "" << 800 << 0 << true;
    QTest::newRow("both sides") << "Home Space Mine/Back Close" << 640 << 0 << true;
    QTest::newRow("odd widths") << "Back Forward Home/Full Close" << 333 << 437 << true;
    QTest::newRow("too narrow") << "Back Forward Home Index/Full Close" << 120 << 0 << false;
}

void WidgetTest::RectanglesAreThoseOfTheLayout() {
    QFETCH(QString, format);
    QFETCH(int, width);
    QFETCH(int, buttonWidth);
    QFETCH(bool, address);
    DesktopBench bench;
    Text error;
    bench.Web().ButtonAdd("Mine", "mine.bmp", "Mine.", error);
    bench.Web().ToolbarFormat(format.toStdString());
    bench.Web().ToolbarButtonWidth(buttonWidth);
    bench.Web().ToolbarAddressVisible(address);
    for (const bool visible : {true, false, true}) {
        bench.Web().ToolbarVisible(visible);
        bench.widget.resize(width, 480);
        QTest::qWait(0);
        bench.widget.Sync();
        QCOMPARE(Differences(bench), Text());
    }
    QVERIFY(bench.Child("picToolbar")->height() > 10);
    QCOMPARE(bench.Child("brwBrowser")->width(), bench.widget.width());
    bench.Web().StopShow("Working");
    bench.Web().StopGaugeReset();
    bench.Web().StopGaugeShow(0.5F);
    bench.widget.Sync();
    QCOMPARE(Differences(bench), Text());
    QVERIFY(bench.Child("picGauge2")->isVisible());
    QVERIFY(qAbs(2 * bench.Child("picGauge2")->width() - bench.Child("picGauge")->width()) <= 2);
}

void WidgetTest::ClicksRunTheActions() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm"), b = bench.Page("b.htm"), home = bench.Page("h.htm"),
               index = bench.Page("i.htm");
    bench.Web().HomePage(home);
    bench.Web().DirectoryHelp(bench.directory.Component());
    bench.Web().IndexPage("i.htm");
    bench.Web().HelpDelay(1);
    bench.Web().ToolbarAddressVisible(true);
    bench.Web().ToolbarVisible(true);
    QVERIFY(bench.Load(a));
    QVERIFY(bench.Load(b));
    bench.widget.Sync();
    QVERIFY(!bench.Child("cmdNext")->isEnabled());

    struct Row {
        Text button, word, end;
    };
    for (const auto& [button, word, end] :
         {Row{"cmdBack", "Back", "DocumentComplete " + a}, Row{"cmdNext", "Forward", "DocumentComplete " + b},
          Row{"cmdRefresh", "Refresh", "RefreshComplete " + b},
          Row{"cmdHome", "Home", "DocumentComplete " + home},
          Row{"cmdIndex", "Index", "HelpPageComplete " + index}}) {
        QTest::qWait(20);
        bench.Take();
        bench.Click(button);
        QVERIFY2(bench.Until(end), button.c_str());
        QVERIFY2(bench.Until("DownloadComplete"), button.c_str());
        QVERIFY2(bench.log[0] == "ToolbarClick " + word + " False", bench.log[0].c_str());
    }
    QTest::qWait(20);
    bench.Take();
    bench.Click("cmdFull");
    QVERIFY(bench.Until("NewWindow2"));
    auto& windows = bench.widget.Pane().Windows();
    QCOMPARE(windows.Standing().size(), std::size_t{1});
    QVERIFY(WaitUntil([&] { return windows.Standing()[0]->windowTitle() == "i"; }));
    bench.widget.activateWindow();
    bench.Take();
    bench.Click("cmdClose");
    QVERIFY(SameLines(bench.Take(), {"ToolbarClick Close False"}));
    QVERIFY(!bench.Web().ToolbarVisible());
    QVERIFY(!bench.Child("picToolbar")->isVisible());
    QCOMPARE(bench.Child("brwBrowser")->y(), 0);
}

void WidgetTest::ListenerMayKillAClick() {
    DesktopBench bench;
    bench.Web().ToolbarVisible(true);
    bench.widget.Sync();
    bench.Web().events.ToolbarClick.Listen([](Text&, Flag& kill) { kill = true; });
    bench.Click("cmdClose");
    QVERIFY(bench.Web().ToolbarVisible());
    QVERIFY(SameLines(bench.Take(), {"ToolbarClick Close True"}));
}

void WidgetTest::UserButtonsAreClicked() {
    DesktopBench bench;
    QImage picture(20, 18, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(QString::fromStdString(bench.directory.Path("red.bmp"))));
    bench.Web().DirectoryRun(bench.directory.Component());
    Text error;
    QVERIFY(bench.Web().ButtonAdd("Mine", "red.bmp", "My own.", error));
    QVERIFY(bench.Web().ButtonAdd("Stop", "none.bmp", "", error));
    bench.Web().ToolbarFormat("Mine Home");
    bench.Web().ToolbarVisible(true);
    bench.widget.Sync();
    auto* mine = static_cast<QToolButton*>(bench.Child("cmdButton(1)"));
    QCOMPARE(mine->toolTip(), QString("My own."));
    QCOMPARE(mine->icon().pixmap(20, 18).toImage().pixelColor(5, 5), QColor(Qt::red));
    QVERIFY2(static_cast<QToolButton*>(bench.Child("cmdButton(2)"))->icon().isNull(),
             "a bad picture is none");
    bench.Click("cmdButton(1)");
    QVERIFY(SameLines(bench.Take(), {"ToolbarClick Mine False"}));

    // The click that takes all buttons away comes from one of them.
    bench.Web().events.ToolbarClick.Listen([&](Text&, Flag&) { bench.Web().ButtonClear(); });
    bench.Click("cmdButton(1)");
    QTest::qWait(10);
    QVERIFY(!bench.Child("cmdButton(1)"));
    QVERIFY(bench.Child("cmdHome")->isVisible());
}

void WidgetTest::AddressLineLoads() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm"), b = bench.Page("b.htm");
    bench.Web().ToolbarAddressVisible(true);
    bench.Web().ToolbarVisible(true);
    QVERIFY(bench.Load(a));
    bench.widget.Sync();
    auto* line = static_cast<QLineEdit*>(bench.Child("txtURL"));
    QCOMPARE(line->text(), QString::fromStdString(a));
    const auto type = [&](const Text& address) {
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QString::fromStdString(address));
    };
    type("  " + b + " ");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(bench.Until("DocumentComplete " + b));
    QVERIFY2(bench.View().hasFocus() || bench.View().focusProxy()->hasFocus(), "the focus goes to the page");
    QTest::qWait(20);
    type(a);
    bench.Click("cmdURL");
    QVERIFY(bench.Until("DocumentComplete " + a));
    QTest::qWait(20);
    bench.Take();
    bench.Web().ToolbarAddressLocked(true);
    bench.widget.Sync();
    type(b);
    QTest::keyClick(line, Qt::Key_Return);
    QTest::qWait(100);
    QVERIFY(bench.Take().empty());
    QCOMPARE(line->text(), QString::fromStdString(a));
}

void WidgetTest::StopPanelStopsARun() {
    DesktopBench bench;
    bench.Web().ToolbarVisible(true);
    bench.Web().StopShow("Making pages");
    bench.Web().StopGaugeReset();
    bool shown = false;
    QTimer::singleShot(50, &bench.widget, [&] {
        shown = bench.Child("fraStop")->isVisible() && !bench.Child("picGauge2")->isVisible();
        bench.Click("cmdStop");
    });
    QElapsedTimer time;
    time.start();
    // A long job: it gives way now and then and looks at the flag.
    Clock& clock = *bench.widget.World().clock;
    while (!bench.Web().StopPressed() && time.elapsed() < 10'000)
        if (clock.Pending()) clock.Yield();
    QVERIFY(shown);
    QVERIFY2(bench.Web().StopPressed(), "the click arrived inside the job");
    QCOMPARE(bench.Child("fraStop")->property("title").toString(), QString("Making pages"));
    QCOMPARE(bench.widget.cursor().shape(), Qt::WaitCursor);
    QCOMPARE(bench.Child("cmdStop")->cursor().shape(), Qt::ArrowCursor);
    bench.Web().StopHide();
    bench.widget.Sync();
    QVERIFY(!bench.Child("fraStop")->isVisible());
    QCOMPARE(bench.widget.cursor().shape(), Qt::ArrowCursor);
    QVERIFY2(bench.Web().StopPressed(), "a job reads it after the fact");
}

void WidgetTest::MouseIsToldInTheControlsCoordinates() {
    DesktopBench bench;
    bench.Web().ToolbarVisible(true);
    bench.Web().StopShow("Room");
    bench.widget.Sync();
    Lines told;
    const auto note = [&](const char* what) {
        return [&told, what](Integer& button, Integer& shift, Single& x, Single& y) {
            told.push_back(Text(what) + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                           std::to_string(qRound(x)) + " " + std::to_string(qRound(y)));
        };
    };
    bench.Web().events.MouseDown.Listen(note("down"));
    bench.Web().events.MouseUp.Listen(note("up"));
    bench.Web().events.MouseMove.Listen(note("move"));
    const desktop::Twips twips(bench.widget);
    const auto expect = [&](QWidget* widget, QPoint point, const Text& keys) {
        const QPoint on = widget->mapTo(&bench.widget, point);
        const Text place = " " + std::to_string(qRound(twips.FromAcross(on.x()))) + " " +
                           std::to_string(qRound(twips.FromDown(on.y())));
        const Lines lines = std::exchange(told, {});
        return SameLines(lines, {"down " + keys + place, "up " + keys + place});
    };
    QWidget* home = bench.Child("cmdHome");
    QTest::mouseClick(home, Qt::RightButton, Qt::ShiftModifier, {3, 4});
    QVERIFY(expect(home, {3, 4}, "2 1"));
    QWidget* strip = bench.Child("picToolbar");
    const QPoint free(strip->width() / 2, 1);
    QTest::mouseClick(strip, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, free);
    QVERIFY(expect(strip, free, "1 6"));
    // The room beside the stop panel is the control's own surface.
    const QPoint beside(5, bench.Child("picToolbar")->height() + 5);
    QTest::mouseClick(bench.Child("picBrowser"), Qt::MiddleButton, {}, beside);
    QVERIFY(expect(bench.Child("picBrowser"), beside, "4 0"));
    bench.Web().ToolbarAddressVisible(true);
    bench.widget.Sync();
    for (const char* silent : {"lblURL", "txtURL", "cmdURL", "fraStop", "picGauge", "picGauge2", "cmdStop"})
        QTest::mouseClick(bench.Child(silent), Qt::RightButton);
    QVERIFY2(told.empty(), "only the surface, the strip and its buttons are heard of");
    const QPointF over(6, 7);
    QMouseEvent move(QEvent::MouseMove, over, home->mapToGlobal(over), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(home, &move);
    const QPoint on = home->mapTo(&bench.widget, over.toPoint());
    QVERIFY2(SameLines(told, {"move 0 0 " + std::to_string(qRound(twips.FromAcross(on.x()))) + " " +
                              std::to_string(qRound(twips.FromDown(on.y())))}),
             "a movement that no widget takes is told once");
}

void WidgetTest::ModelsArriveAtTheWidgets() {
    DesktopBench bench;
    bench.Web().ToolbarVisible(true);
    bench.Web().ControlToolTip("The help");
    bench.Web().ToolbarButtonMousePointerSet("home", 2);
    bench.Web().ToolbarButtonEnabledSet("home", false);
    // Nobody has to ask: it happens before the loop waits.
    QVERIFY(WaitUntil([&] { return bench.widget.toolTip() == "The help"; }));
    QCOMPARE(bench.Child("cmdHome")->cursor().shape(), Qt::CrossCursor);
    QVERIFY(!bench.Child("cmdHome")->isEnabled());
    QCOMPARE(bench.Child("cmdHome")->toolTip(), QString("Go to the home page."));
    bench.Web().Enabled(false);
    QVERIFY(WaitUntil([&] { return !bench.widget.isEnabled(); }));
    bench.Web().Enabled(true);
    QVERIFY(WaitUntil([&] { return bench.widget.isEnabled(); }));
    QVERIFY(bench.Child("cmdClose")->isEnabled());

    Long top = 0, left = 0;
    bench.Web().events.GetControlPosition(top, left);
    const QPoint corner = bench.widget.mapToGlobal(QPoint(0, 0));
    const desktop::Twips twips(bench.widget);
    QCOMPARE(top, qRound(twips.FromDown(corner.y())));
    QCOMPARE(left, qRound(twips.FromAcross(corner.x())));
}

void WidgetTest::YieldsKeepTheWindowAlive() {
    DesktopBench bench;
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start(10);
    bench.Web().WaitMilliSeconds(200);
    QVERIFY(ticks >= 5);
    QVERIFY(!bench.widget.InYield());
    // Work that yields inside its own handler must come to an end.
    int depth = 0;
    std::function<void()> again = [&] {
        if (++depth < 1000) {
            bench.widget.World().clock->Post(again);
            bench.widget.World().clock->Yield();
        }
    };
    bench.widget.World().clock->Post(again);
    QVERIFY(WaitUntil([&] { return depth == 1000; }));
}

void WidgetTest::SleepsUntilSomethingIsDueOrReady() {
    desktop::QtClock clock;
    QCOMPARE(SleepLog(clock), Text(ExpectedSleepLog));
}

} // namespace ostrel::test
