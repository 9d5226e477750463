// A program stopped at each of its system calls.
#pragma once

#include <QByteArrayList>

// Whether a program of one's own can be followed on this system.
bool CanFollow();

// Starts the program, lets it run until it stops itself, then through the given number of
// entries to and returns from system calls, and kills it there. False where it stopped itself
// once more before that.
bool KillAtSystemCall(const QByteArrayList& program, int stops);
