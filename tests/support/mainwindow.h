// The main window as start-up leaves it, with a recorder in place of the sound.
#pragma once

#include "core/language.h"
#include "core/settings.h"
#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"
#include "support/recordingsound.h"
#include "support/watchdog.h"
#include "workbench/frmmain.h"

#include <QScreen>
#include <QTest>

struct MainWindow {
    MainWindow() : MainWindow(standardStrings, true) {}
    MainWindow(const OpenStrings& strings, bool thinStringAtBottom) {
        LayStrings(state, strings, thinStringAtBottom);
        workbench.StringsChanged();
        state.UiText = BuiltInUiTexts();
        window.ShowTypes();
        window.ShowRoots();
        window.ShowScales();
        window.SelectDefaults();
        window.OpenAtBestSize(window.screen()->availableGeometry().size());
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    template <typename Widget = QWidget>
    Widget* Find(const QString& name) {
        auto* found = window.findChild<Widget*>(name);
        if (found == nullptr)
            qFatal("no control is called %s", qPrintable(name));
        return found;
    }

    QString Text(const QString& label) { return Find<QLabel>(label)->text(); }
    QString Text(const QString& label, int index) {
        return Text(QStringLiteral("%1(%2)").arg(label).arg(index));
    }

    // The colour in which a label's text is painted.
    QColor Colour(const QString& label) {
        return Find<QLabel>(label)->palette().color(QPalette::WindowText);
    }

    void Press(TwipPicture* picture, QPointF twips, Qt::MouseButton button = Qt::LeftButton) {
        Send(picture, QEvent::MouseButtonPress, twips, button, button);
    }
    void Move(TwipPicture* picture, QPointF twips) {
        Send(picture, QEvent::MouseMove, twips, Qt::NoButton, Qt::NoButton);
    }
    void Release(TwipPicture* picture, QPointF twips, Qt::MouseButton button = Qt::LeftButton) {
        Send(picture, QEvent::MouseButtonRelease, twips, button, Qt::NoButton);
    }
    void Click(TwipPicture* picture, QPointF twips, Qt::MouseButton button = Qt::LeftButton) {
        Press(picture, twips, button);
        Release(picture, twips, button);
    }
    void ClickRow(ListBox* list, int row) {
        list->scrollTo(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    }

    // A pixel of the picture, painted anew.
    QColor Pixel(TwipPicture* picture, QPointF twips) {
        const QImage image = picture->grab().toImage();
        return image.pixelColor((twips * picture->Scale()).toPoint());
    }

    AppState state;
    HandClock clock;
    RecordingPlayer midi{clock};
    Workbench workbench{state};
    frmMain window{state, workbench, midi, clock};
    PicStrings* board = window.panel->picStrings;
    PicKeyboard* keyboard = window.panel->picKeyboard;

private:
    static void Send(QWidget* widget, QEvent::Type type, QPointF twips, Qt::MouseButton button,
                     Qt::MouseButtons buttons) {
        const QPointF place = twips * static_cast<TwipPicture*>(widget)->Scale();
        QMouseEvent event(type, place, widget->mapToGlobal(place), button, buttons, {});
        QCoreApplication::sendEvent(widget, &event);
    }
};
