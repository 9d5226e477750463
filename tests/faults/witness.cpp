// Loaded by the toolkit into the unchanged program: says on the standard output which of its
// windows open, answers message boxes, and closes the main window once it is painted; with
// the argument "stay", once the standard input says something.
#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>

namespace {

void Say(const QString& what) {
    std::puts(what.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace

class Witness : public QObject {
    Q_OBJECT

public:
    explicit Witness(bool stay) : m_stay(stay) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("frmMain"))
            MainWindowPainted(static_cast<QWidget*>(watched));
        if (auto* box = qobject_cast<QMessageBox*>(watched);
            box != nullptr && event->type() == QEvent::Show)
            Answer(box);
        return false;
    }

private:
    void MainWindowPainted(QWidget* window) {
        if (m_painted)
            return;
        m_painted = true;
        Say(QStringLiteral("frmMain: ") + window->windowTitle());
        if (m_stay)
            connect(&m_input, &QSocketNotifier::activated, window, &QWidget::close);
        else
            QTimer::singleShot(0, window, &QWidget::close);
    }

    static void Answer(QMessageBox* box) {
        Say(QStringLiteral("message: ") + box->text());
        QTimer::singleShot(0, box, [box] { box->buttons().constFirst()->click(); });
    }

    bool m_stay;
    QSocketNotifier m_input{fileno(stdin), QSocketNotifier::Read};
    bool m_painted = false;
};

class WitnessPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "witness.json")

public:
    QObject* create(const QString& name, const QString& argument) override {
        return name == QStringLiteral("witness") ? new Witness(argument == QStringLiteral("stay"))
                                                 : nullptr;
    }
};

#include "witness.moc"
