#include "sound/soundfont.h"

#include <QDir>
#include <QFileInfo>

QString FindSoundFont(const QString& appPath) {
    const QStringList own = QDir(appPath).entryList(
        {QStringLiteral("*.sf2"), QStringLiteral("*.sf3")}, QDir::Files, QDir::Name);
    if (!own.isEmpty())
        return appPath + own.first();
    const QString folder = QStringLiteral("/usr/share/sounds/");
    for (const auto& name :
         {QStringLiteral("sf2/TimGM6mb.sf2"), QStringLiteral("sf2/default-GM.sf2"),
          QStringLiteral("sf3/default-GM.sf3"), QStringLiteral("sf2/FluidR3_GM.sf2")})
        if (QFileInfo(folder + name).isFile())
            return folder + name;
    return {};
}
