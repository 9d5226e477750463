// A system that refuses to write, for as long as one of these lives.
#pragma once

#include <QString>

// The rights of an ordinary user, also where the administrator runs the test.
class OrdinaryUser {
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    // Whether permissions keep anyone out now.
    bool Holds() const { return m_holds; }

private:
    bool m_dropped = false;
    bool m_holds = false;
};

// No file can grow beyond this size, as on a disk with as much room.
class LittleRoom {
public:
    explicit LittleRoom(unsigned long bytes);
    ~LittleRoom();
    LittleRoom(const LittleRoom&) = delete;
    LittleRoom& operator=(const LittleRoom&) = delete;

    bool Holds() const { return m_holds; }

private:
    unsigned long m_before = 0;
    bool m_holds = false;
};

// A disk of 64 KiB in the place of a folder.
class SmallDisk {
public:
    explicit SmallDisk(const QString& folder);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool Holds() const { return m_holds; }

private:
    QString m_folder;
    bool m_holds = false;
};
