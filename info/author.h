// Who wrote the program, as About and the splash show it.
#pragma once

#include "core/phrase.h"

struct Author {
    Phrase name;
    QString email; // May be empty.
};

inline Author ProgramAuthor() {
    return {{QStringLiteral("разработчики программы «Тонвик»"),
             QStringLiteral("The Tonvik developers")},
            {}};
}
