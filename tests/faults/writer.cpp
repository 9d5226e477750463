// Replaces a file again and again by two contents in turn, until it is killed; says so after
// each. With a third argument it does it once, stopping itself before and after.
#include "contents.h"

#include <QFile>

#include <csignal>
#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 2)
        return 2;
    const QString path = QFile::decodeName(argv[1]);
#ifdef SIGSTOP
    if (argc > 2) {
        std::raise(SIGSTOP);
        WriteContent(path, Content::New);
        std::raise(SIGSTOP);
        return 0;
    }
#endif
    for (bool other = true;; other = !other) {
        WriteContent(path, other ? Content::New : Content::Old);
        std::puts("written");
        std::fflush(stdout);
    }
}
