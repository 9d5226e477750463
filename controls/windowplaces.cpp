#include "controls/windowplaces.h"

#include "core/datafile.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QWidget>

#include <utility>

WindowPlaces::WindowPlaces(QString path, QStringList windows)
    : m_path(std::move(path)), m_windows(std::move(windows)) {
    qApp->installEventFilter(this);
}

// A line for each window: its name, a blank, what the toolkit needs to give it its place back.
WindowPlaces::Places WindowPlaces::Read() const {
    Places places;
    for (const QByteArray& line : TryToRead(m_path).bytes.split('\n'))
        if (const auto blank = line.indexOf(' '); blank > 0)
            places[QString::fromUtf8(line.left(blank))] =
                QByteArray::fromBase64(line.mid(blank + 1));
    return places;
}

// Another run may have written meanwhile: its other windows stay.
void WindowPlaces::Keep(const QWidget& window) const {
    Places places = Read();
    places[window.objectName()] = window.saveGeometry();
    QByteArray bytes;
    for (const auto& [name, place] : places)
        if (m_windows.contains(name))
            bytes += name.toUtf8() + ' ' + place.toBase64() + '\n';
    if (QDir().mkpath(QFileInfo(m_path).path()))
        static_cast<void>(ReplaceFile(m_path, bytes));
}

// A window is given its place when it is shown, as it takes sizes of its own before; the second
// time it stands where it was left.
bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
    constexpr auto placed = "placed";
    const bool begins = event->type() == QEvent::Show && !event->spontaneous();
    const bool ends = event->type() == QEvent::Hide && !event->spontaneous();
    if (!begins && !ends)
        return false;
    auto* window = qobject_cast<QWidget*>(watched);
    if (window == nullptr || !window->isWindow() || !m_windows.contains(window->objectName()))
        return false;
    if (ends) {
        Keep(*window);
    } else if (!window->property(placed).toBool()) {
        window->setProperty(placed, true);
        if (const Places places = Read(); places.contains(window->objectName()))
            window->restoreGeometry(places.at(window->objectName()));
    }
    return false;
}
