// Who wrote the program, as About and the splash show it. What is left blank is not shown.
#pragma once

#include <QString>
#include <QStringView>

constexpr QStringView authorName = u"";
constexpr QStringView authorEmail = u"";

struct Author {
    QString name;
    QString email;
};

inline Author ProgramAuthor() {
    return {authorName.toString(), authorEmail.toString()};
}
