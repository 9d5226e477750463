#include "systemcalls.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <csignal>
#include <vector>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Waits for the next stop of the program; the signal that it stopped for, 0 where it ended.
int NextStop(pid_t program) {
    int status = 0;
    if (waitpid(program, &status, __WALL) != program || !WIFSTOPPED(status))
        return 0;
    return WSTOPSIG(status);
}

// Lets it run on to the next stop, as the request says.
int RunTo(__ptrace_request request, pid_t program) {
    return ptrace(request, program, nullptr, nullptr) == 0 ? NextStop(program) : 0;
}

pid_t StartFollowed(const QByteArrayList& program) {
    std::vector<char*> words;
    for (const QByteArray& word : program)
        words.push_back(const_cast<char*>(word.constData()));
    words.push_back(nullptr);
    const pid_t started = fork();
    if (started != 0)
        return started;
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0)
        execv(words[0], words.data());
    _exit(127);
}

void Kill(pid_t program) {
    kill(program, SIGKILL);
    waitpid(program, nullptr, __WALL);
}

} // namespace

bool CanFollow() {
    const pid_t started = StartFollowed({"/bin/true"});
    const bool stopped = started > 0 && NextStop(started) == SIGTRAP;
    if (stopped)
        Kill(started);
    return stopped;
}

bool KillAtSystemCall(const QByteArrayList& program, int stops) {
    const pid_t started = StartFollowed(program);
    if (started < 0 || NextStop(started) != SIGTRAP)
        qFatal("the program cannot be followed");
    if (RunTo(PTRACE_CONT, started) != SIGSTOP)
        qFatal("the program does not stop itself");
    bool ended = false;
    for (int stop = 0; stop < stops && !ended; ++stop) {
        const int signal = RunTo(PTRACE_SYSCALL, started);
        if (signal == 0)
            qFatal("the program ended");
        ended = signal == SIGSTOP;
    }
    Kill(started);
    return !ended;
}

#else

bool CanFollow() {
    return false;
}

bool KillAtSystemCall(const QByteArrayList&, int) {
    return false;
}

#endif
