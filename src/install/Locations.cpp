#include "install/Locations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace brelk::install {

namespace {

// Copies each map (*.txt) of `shippedDir` that `mapDir` lacks into it.
void copyMissingMaps(const QString& shippedDir, const QString& mapDir) {
    const QDir shipped(shippedDir);
    for (const QString& name : shipped.entryList({QStringLiteral("*.txt")}, QDir::Files)) {
        const QString target = QDir(mapDir).filePath(name);
        // QFile::copy never replaces a file: a map the coach changed stays.
        if (QFileInfo::exists(target) || !QFile::copy(shipped.filePath(name), target)) continue;
        // The copy has the install's permissions; the coach may edit it.
        QFile::setPermissions(target, QFile::permissions(target) | QFile::ReadOwner | QFile::WriteOwner);
    }
}

}  // namespace

Locations programLocations(const QString& exeDir) {
    if (QFileInfo(exeDir).isWritable()) return {exeDir, exeDir};

    const Locations user{QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation),
                         QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
    QDir().mkpath(user.settingsDir);
    QDir().mkpath(user.mapDir);
    copyMissingMaps(QDir(exeDir).filePath(QStringLiteral(BRELK_MAPS_FROM_BIN)), user.mapDir);
    return user;
}

}  // namespace brelk::install
