// The parts of a picture that a user can act on, as a screen reader and the keyboard find them.
#pragma once

#include <QAccessible>
#include <QRectF>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

struct PartAction {
    QString name; // In the interface's language.
    std::function<void()> run;
};

// Of a part that can be set to one of several values.
struct PartRange {
    int value;
    int lowest;
    int highest;
    std::function<void(int)> set;
};

struct PicturePart {
    QAccessible::Role role = QAccessible::NoRole;
    QString name;                // With all that its look tells.
    QRectF place;                // In twips.
    std::optional<bool> checked; // Of a part that is on or off.
    std::optional<PartRange> range;
    std::vector<PartAction> actions; // The first one is what a click does.
};

struct PictureParts {
    std::vector<PicturePart> parts;
    std::vector<PartAction> actions; // On the whole picture; the first one is the right click's.
};
