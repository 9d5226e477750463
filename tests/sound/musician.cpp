// Loaded by the toolkit into the unchanged program: does in its windows what the lines on the
// standard input say, and says each line back when it is done. A line is a key ("Ctrl+Return"),
// "click" and a button's name, a drop-down's name and a row, "gap" or "close". "gap" says how
// many milliseconds the event loop stood still at longest since it was asked before.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

void Say(const QString& what) {
    std::puts(what.toUtf8().constData());
    std::fflush(stdout);
}

template <typename Control>
Control* Find(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            if (auto* control = window->findChild<Control*>(name))
                return control;
    return nullptr;
}

} // namespace

class Musician : public QObject {
    Q_OBJECT

public:
    Musician() {
        qApp->installEventFilter(this);
        m_input.setEnabled(false);
        connect(&m_input, &QSocketNotifier::activated, this, &Musician::Read);
        connect(&m_pulse, &QTimer::timeout, this, &Musician::MeasureGap);
        m_pulse.setTimerType(Qt::PreciseTimer);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("frmMain") &&
            m_window == nullptr) {
            m_window = static_cast<QWidget*>(watched);
            m_input.setEnabled(true);
        }
        return false;
    }

private:
    void Read() {
        char bytes[256];
        const auto count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0)
            return m_input.setEnabled(false);
        m_lines += QByteArray(bytes, static_cast<qsizetype>(count));
        for (qsizetype end = m_lines.indexOf('\n'); end >= 0; end = m_lines.indexOf('\n')) {
            const QString line = QString::fromUtf8(m_lines.left(end));
            m_lines.remove(0, end + 1);
            QTimer::singleShot(0, m_window, [this, line] {
                Do(line);
                Say(line);
            });
        }
    }

    void Do(const QString& line) {
        const QString what = line.section(u' ', 0, 0);
        if (line == QStringLiteral("close"))
            m_window->close();
        else if (line == QStringLiteral("gap"))
            SayGap();
        else if (what == QStringLiteral("click"))
            Find<QAbstractButton>(line.section(u' ', 1))->click();
        else if (auto* dropDown = Find<QComboBox>(what))
            dropDown->setCurrentIndex(line.section(u' ', 1).toInt());
        else
            Press(QKeySequence(line)[0]);
    }

    void Press(QKeyCombination key) {
        QWidget* const window = QApplication::activeWindow();
        QWidget* const focus = window->focusWidget();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key.key(), key.keyboardModifiers());
            QCoreApplication::sendEvent(focus != nullptr ? focus : window, &event);
        }
    }

    void SayGap() {
        if (m_pulse.isActive())
            Say(QStringLiteral("%1 ms").arg(m_longest));
        m_longest = 0;
        m_since.start();
        m_pulse.start(1);
    }

    void MeasureGap() { m_longest = std::max(m_longest, m_since.restart()); }

    QWidget* m_window = nullptr;
    QSocketNotifier m_input{STDIN_FILENO, QSocketNotifier::Read};
    QByteArray m_lines;
    QTimer m_pulse;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

class MusicianPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "musician.json")

public:
    QObject* create(const QString& name, const QString&) override {
        return name == QStringLiteral("musician") ? new Musician : nullptr;
    }
};

#include "musician.moc"
