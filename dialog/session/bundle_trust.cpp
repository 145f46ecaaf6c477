// SPDX-License-Identifier: MIT
#include "dialog/session/bundle_trust.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvern {

namespace {

struct BundleTrustWords {
    Q_DECLARE_TR_FUNCTIONS(PluginLoader)
};

// Many systems give each user a group of the same name, and let it write what the user makes.
bool isOnlyTheUsers(gid_t group)
{
    const passwd* const user = getpwuid(getuid());
    if (!user || user->pw_gid != group)
        return false;
    const QByteArray name = user->pw_name;
    const struct group* const found = getgrgid(group);
    return found && name == found->gr_name && !found->gr_mem[0];
}

QString problemOf(const QString& path)
{
    struct stat about = {};
    if (stat(QFile::encodeName(path).constData(), &about) != 0)
        return BundleTrustWords::tr("%1 cannot be looked at").arg(path);
    if (about.st_uid != 0 && about.st_uid != getuid())
        return BundleTrustWords::tr("%1 belongs to another user").arg(path);
    const bool isOpenToGroup = (about.st_mode & S_IWGRP) != 0 && about.st_gid != 0;
    if ((about.st_mode & S_IWOTH) != 0 || (isOpenToGroup && !isOnlyTheUsers(about.st_gid)))
        return BundleTrustWords::tr("%1 can be changed by other users").arg(path);
    return {};
}

} // namespace

QString bundleProblem(const QString& path)
{
    const QString bundle = QFileInfo(path).canonicalFilePath();
    for (const QString& folder : {QFileInfo(path).path(), QFileInfo(bundle).path(), bundle}) {
        if (const QString problem = problemOf(folder); !problem.isEmpty())
            return problem;
    }
    QDirIterator parts(bundle, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (parts.hasNext()) {
        if (const QString problem = problemOf(parts.next()); !problem.isEmpty())
            return problem;
    }
    return {};
}

} // namespace halvern
