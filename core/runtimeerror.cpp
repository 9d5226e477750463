#include "core/runtimeerror.h"

#include <utility>

RunTimeError::RunTimeError(Phrase what)
    : m_what(std::move(what)), m_bytes(m_what.english.toUtf8()) {}

RunTimeError OutOfMemory() {
    return RunTimeError({QStringLiteral("Не хватает памяти для этого действия."),
                         QStringLiteral("There is not enough memory for this action.")});
}

void CheckIndex(qint64 index, qint64 first, qint64 last, const Phrase& table) {
    if (index >= first && index <= last)
        return;
    // All at once: a name may hold a percent sign and a digit.
    const QString number = QString::number(index);
    if (last < first)
        throw RunTimeError(
            {QStringLiteral("Список «%1» пуст: номера %2 в нём нет.").arg(table.russian, number),
             QStringLiteral("There is no number %2 in %1: it is empty.")
                 .arg(table.english, number)});
    throw RunTimeError(
        {QStringLiteral("В списке «%1» нет номера %2: его номера от %3 до %4.")
             .arg(table.russian, number, QString::number(first), QString::number(last)),
         QStringLiteral("There is no number %2 in %1: it is numbered %3 to %4.")
             .arg(table.english, number, QString::number(first), QString::number(last))});
}
