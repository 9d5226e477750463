// Where the windows stood and how large they were, kept from run to run.
#pragma once

#include <QObject>
#include <QStringList>

#include <map>

class QWidget;

class WindowPlaces : public QObject {
public:
    // path: the file they are kept in; its folder is made when a window is hidden. What cannot be
    // read or written is not remembered, silently. windows: the object names of those that are;
    // each gets its place back when it is shown for the first time.
    WindowPlaces(QString path, QStringList windows);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Places = std::map<QString, QByteArray>;

    Places Read() const;
    void Keep(const QWidget& window) const;

    QString m_path;
    QStringList m_windows;
};
