// The run-time error: what a checked access throws and the event loop reports.
#pragma once

#include "core/phrase.h"

#include <exception>

class RunTimeError : public std::exception {
public:
    // what: the failure and its place, in words that a user can pass on.
    explicit RunTimeError(Phrase what);

    const Phrase& What() const { return m_what; }
    const char* what() const noexcept override { return m_bytes.constData(); }

private:
    Phrase m_what;
    QByteArray m_bytes;
};

// What is thrown, or reported, where the memory does not suffice.
RunTimeError OutOfMemory();

// Throws unless first <= index <= last. The table's name goes into the report.
void CheckIndex(qint64 index, qint64 first, qint64 last, const Phrase& table);
