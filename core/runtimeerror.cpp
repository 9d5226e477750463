#include "core/runtimeerror.h"

#include <utility>

RunTimeError::RunTimeError(Phrase what)
    : m_what(std::move(what)), m_bytes(m_what.english.toUtf8()) {}

void CheckIndex(qint64 index, qint64 first, qint64 last, const Phrase& table) {
    if (index >= first && index <= last)
        return;
    // All at once: a name may hold a percent sign and a digit.
    const QString number = QString::number(index);
    if (last < first)
        throw RunTimeError(
            {QStringLiteral("Выход за границы: %1 – нет элемента с номером %2 (список пуст).")
                 .arg(table.russian, number),
             QStringLiteral("Out of range: %1 – no element %2 (it is empty).")
                 .arg(table.english, number)});
    throw RunTimeError(
        {QStringLiteral("Выход за границы: %1 – нет элемента с номером %2 (есть %3…%4).")
             .arg(table.russian, number, QString::number(first), QString::number(last)),
         QStringLiteral("Out of range: %1 – no element %2 (there are %3 to %4).")
             .arg(table.english, number, QString::number(first), QString::number(last))});
}
