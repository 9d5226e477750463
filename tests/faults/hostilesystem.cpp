#include "hostilesystem.h"

#include <QFile>

#ifdef Q_OS_LINUX

#include <csignal>

#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr uid_t administrator = 0;
constexpr uid_t nobody = 65534;

} // namespace

OrdinaryUser::OrdinaryUser() {
    if (getuid() == administrator)
        m_dropped = setresuid(nobody, nobody, administrator) == 0;
    m_holds = geteuid() != administrator;
}

OrdinaryUser::~OrdinaryUser() {
    if (m_dropped && setresuid(administrator, administrator, administrator) != 0)
        qFatal("the administrator's rights are lost");
}

LittleRoom::LittleRoom(unsigned long bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    m_before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    m_holds = setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

LittleRoom::~LittleRoom() {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = m_before;
    setrlimit(RLIMIT_FSIZE, &limit);
}

SmallDisk::SmallDisk(const QString& folder)
    : m_folder(folder),
      m_holds(mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", MS_NOSUID,
                    "size=64k") == 0) {}

SmallDisk::~SmallDisk() {
    if (m_holds)
        umount2(QFile::encodeName(m_folder).constData(), MNT_DETACH);
}

#else

OrdinaryUser::OrdinaryUser() = default;
OrdinaryUser::~OrdinaryUser() = default;
LittleRoom::LittleRoom(unsigned long) {}
LittleRoom::~LittleRoom() = default;
SmallDisk::SmallDisk(const QString&) {}
SmallDisk::~SmallDisk() = default;

#endif
