#include "core/runtimeerror.h"

#include <utility>

RunTimeError::RunTimeError(Phrase what)
    : m_what(std::move(what)), m_bytes(m_what.english.toUtf8()) {}

void CheckIndex(qint64 index, qint64 first, qint64 last, const Phrase& table) {
    if (index >= first && index <= last)
        return;
    if (last < first)
        throw RunTimeError(
            {QStringLiteral("Выход за границы: %1 – нет элемента с номером %2 (список пуст).")
                 .arg(table.russian)
                 .arg(index),
             QStringLiteral("Out of range: %1 – no element %2 (it is empty).")
                 .arg(table.english)
                 .arg(index)});
    throw RunTimeError(
        {QStringLiteral("Выход за границы: %1 – нет элемента с номером %2 (есть %3…%4).")
             .arg(table.russian)
             .arg(index)
             .arg(first)
             .arg(last),
         QStringLiteral("Out of range: %1 – no element %2 (there are %3 to %4).")
             .arg(table.english)
             .arg(index)
             .arg(first)
             .arg(last)});
}
