#include "info/chordcount.h"

#include "core/runtimeerror.h"

#include <limits>

qint16 ChordCount(const ChordRows& rows) {
    const qint64 count = qint64{rows.roots} * rows.types;
    using Limits = std::numeric_limits<qint16>;
    if (count < Limits::min() || count > Limits::max())
        throw RunTimeError(
            {QStringLiteral("Переполнение: аккордов %1, а сосчитать можно не больше %2.")
                 .arg(count)
                 .arg(Limits::max()),
             QStringLiteral("Overflow: there are %1 chords, but no more than %2 can be counted.")
                 .arg(count)
                 .arg(Limits::max())});
    return static_cast<qint16>(count);
}
