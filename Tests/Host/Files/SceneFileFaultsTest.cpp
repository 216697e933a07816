#include "Files/SceneFileFixture.h"

#include <QDir>
#include <QMap>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <utime.h>

#include <cstring>
#include <unistd.h>

/// Saves that are killed or whose calls fail.
class SceneFileFaultsTest : public SceneFileFixture {
protected:
    typedef QMap<QString, QByteArray> Files;

    /// What became of a save in a process of its own: what it said, that no call failed, or
    /// nothing.
    struct Save {
        int status;
        QString said;
    };

    ~SceneFileFaultsTest() override { qunsetenv("QX_FAULT"); }

    static QByteArray corners(float size)
    {
        const float points[9] = {0, 0, 0, size, 0, 0, 0, size, 0};
        return {reinterpret_cast<const char *>(points), sizeof(points)};
    }
    /// Opens a scene and changes it, to be saved where older files stand.
    void prepare(const QString &from, const QString &to)
    {
        qputenv("QX_FAULT", "none"); // the disk need not follow
        const QByteArray text = bytesOf(testData("Scenes/car.gltf"));
        write("a/car data.bin", corners(1));
        load(write("a/car.gltf", text));
        save(path("a/car.glb"));
        write("b/car.bin", corners(2));
        load(write("b/car.gltf", QByteArray(text).replace("car%20data", "car")));
        save(path("b/car.glb"));
        load(path(from));
        find("Wheels").choose(-2);
        target = path(to);
        old = files();
        save(target);
        fresh = files();
        ASSERT_NE(fresh[QFileInfo(to).fileName()], old[QFileInfo(to).fileName()]);
        restore();
    }
    QDir place() const { return QFileInfo(target).dir(); }
    QByteArray sceneOf(const Files &all) const { return all[QFileInfo(target).fileName()]; }
    Files files() const
    {
        Files all;
        for (const QString &name : place().entryList(QDir::Files | QDir::Hidden))
            all[name] = bytesOf(place().filePath(name));
        return all;
    }
    void restore() const
    {
        for (const QString &name : files().keys())
            place().remove(name);
        for (const QString &name : old.keys())
            write(QDir(folder.path()).relativeFilePath(place().filePath(name)), old[name]);
    }
    Save saveWith(const char *call, int number, int error)
    {
        const QByteArray fault =
            QStringLiteral("%1 %2 %3").arg(call).arg(number).arg(error).toUtf8();
        const QString said = write("said", QByteArray());
        const pid_t child = fork();
        if (child == 0) {
            qputenv("QX_FAULT", fault);
            const bool isDone = file.save(target);
            const bool isHit = qgetenv("QX_FAULT") != fault;
            qputenv("QX_FAULT", "none");
            write("said", isHit ? file.errorString().toUtf8() : "no call failed");
            _exit(isDone ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return {status, bytesOf(said)};
    }
    /// Owner, group, mode and attributes.
    static QByteArray traitsOf(const QByteArray &name)
    {
        struct stat status;
        EXPECT_EQ(stat(name, &status), 0);
        QByteArray traits = QStringLiteral("%1 %2 %3 ")
                                .arg(status.st_uid)
                                .arg(status.st_gid)
                                .arg(status.st_mode, 0, 8)
                                .toUtf8();
        for (const char *attribute : {"user.note", "system.posix_acl_access"}) {
            char value[100];
            traits.append(value, qMax(0, int(getxattr(name, attribute, value, sizeof(value)))));
        }
        return traits;
    }
    /// Expects all old or all new files; beside the old ones whole new ones may stand, and what the
    /// next save removes.
    void expectOldOrNew() const
    {
        Files now = files();
        if (now == fresh)
            return;
        for (const QString &name : now.keys()) {
            if (!name.endsWith(".saving")) {
                EXPECT_EQ(now[name], old.value(name, fresh[name])) << name.toStdString();
            }
        }
        for (const QString &name : old.keys())
            EXPECT_TRUE(now.contains(name)) << name.toStdString();
    }

    QString target;
    Files old;
    Files fresh;
};

/// From where to where: only the scene file, one that packs its buffer, one with a new file beside
/// it.
const std::pair<const char *, const char *> saves[] = {
    {"a/car.gltf", "a/car.gltf"}, {"a/car.gltf", "b/car.glb"}, {"a/car.glb", "b/car.gltf"}};

TEST_F(SceneFileFaultsTest, AKilledSaveLeavesOldOrNewFilesAndTheNextOneTidiesUp)
{
    int kills = 0;
    int changes = 0;
    for (const auto &[from, to] : saves) {
        prepare(from, to);
        for (int number = 1; !HasFailure(); ++number) {
            SCOPED_TRACE(testing::Message() << to << ", killed at call " << number);
            const Save run = saveWith("any", number, 0);
            expectOldOrNew();
            if (run.said == "no call failed")
                break;
            EXPECT_TRUE(WIFSIGNALED(run.status));
            ++kills;
            changes += sceneOf(files()) == sceneOf(fresh);
            save(target);
            EXPECT_EQ(files(), fresh);
            restore();
        }
        EXPECT_EQ(loadError(target), "");
    }
    EXPECT_GE(kills, 200);
    EXPECT_GE(changes, 3) << "some are killed after the scene file took its place";
}

TEST_F(SceneFileFaultsTest, AFailedCallIsToldAndLeavesTheOldFiles)
{
    for (const auto &[from, to] : saves) {
        prepare(from, to);
        for (const char *call : {"write", "sync", "rename"}) {
            for (const int error : {EIO, ENOSPC, EINTR}) {
                const int step = *call == 'w' ? 9 : 1;
                int number = 1 - step;
                for (Save run{}; run.said != "no call failed" && !HasFailure(); restore()) {
                    run = saveWith(call, number += step, error);
                    SCOPED_TRACE(testing::Message() << to << ", " << call << ' ' << number << ": "
                                                    << run.said.toStdString());
                    const bool isNew = error == EINTR || run.said == "no call failed";
                    EXPECT_EQ(run.status == 0, isNew);
                    EXPECT_EQ(files(), isNew ? fresh : old);
                    EXPECT_EQ(run.said.contains(strerror(error)), !isNew);
                }
                EXPECT_GT(number, 1);
            }
        }
        // Of the folder: the scene file is there, but the disk may not know its name.
        const Save run = saveWith("folder", from == QString("a/car.glb") ? 2 : 1, EIO);
        EXPECT_NE(run.status, 0);
        EXPECT_EQ(run.said,
                  target + ": it is written, but may not be on the disk: " + strerror(EIO));
        EXPECT_EQ(files(), fresh);
    }
}

TEST_F(SceneFileFaultsTest, AFileOfSeveralNamesKeepsThemAllAndOneHalfWrittenHasItsContentBeside)
{
    prepare("a/car.gltf", "a/car.gltf");
    const QString other = path("other.gltf");
    EXPECT_EQ(link(target.toUtf8(), other.toUtf8()), 0);
    const Save run = saveWith("truncate", 1, EIO);
    const QString whole = place().filePath(".car.gltf.0.saving");
    EXPECT_TRUE(run.said.contains(strerror(EIO)) && run.said.contains(whole));
    EXPECT_EQ(bytesOf(whole), sceneOf(fresh));
    save(target);
    EXPECT_EQ(files(), fresh);
    EXPECT_EQ(bytesOf(other), sceneOf(fresh));
    EXPECT_TRUE(file.warnings().join("").contains("several hard links"));
}

TEST_F(SceneFileFaultsTest, AFileStaysWhatItWas)
{
    prepare("a/car.gltf", "a/car.gltf");
    const QByteArray name = target.toUtf8();
    if (geteuid() == 0) {
        EXPECT_EQ(chown(name, 12345, 23456), 0);
    }
    EXPECT_EQ(chmod(name, 0640), 0);
    // A list that lets user 12345 write; not every file system has such, or any attributes.
    const QByteArray list =
        QByteArray::fromHex("0200000001000600ffffffff020006003930000004000400ffffffff10000600"
                            "ffffffff20000000ffffffff");
    setxattr(name, "user.note", "mine", 4, 0);
    setxattr(name, "system.posix_acl_access", list, std::size_t(list.size()), 0);
    const QByteArray before = traitsOf(name);
    EXPECT_TRUE(before.contains(" 100640 ") || before.contains(" 100660 "));
    const QString way = path("way.gltf");
    ASSERT_TRUE(QFile::link("a/car.gltf", way));
    save(way);
    EXPECT_TRUE(QFileInfo(way).isSymLink());
    EXPECT_EQ(bytesOf(target), sceneOf(fresh));
    EXPECT_EQ(traitsOf(name), before);
    ASSERT_TRUE(QFile::link("b/new.gltf", path("nowhere.gltf")));
    save(path("nowhere.gltf"));
    EXPECT_TRUE(QFileInfo(path("b/new.gltf")).isFile());
}

TEST_F(SceneFileFaultsTest, AnotherSaveOfTheFileAtTheSameMomentIsLeftAlone)
{
    prepare("a/car.gltf", "a/car.gltf");
    const QString other = write("a/.car.gltf.0.saving", QByteArray("half"));
    const int held = open(other.toUtf8(), O_RDWR);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    save(target);
    EXPECT_EQ(bytesOf(other), "half");
    close(held);
    save(target);
    EXPECT_EQ(files(), fresh);
}

TEST_F(SceneFileFaultsTest, WhatOthersChangeIsNoticedAndBuffersThatWereLoadedAreNotLost)
{
    prepare("a/car.gltf", "a/car.gltf");
    const QString bin = path("a/car data.bin");
    save(target);
    EXPECT_FALSE(file.isChangedByOthers(target)) << "it was this one";
    for (const auto &[changed, isAsked] :
         {std::pair(path("b/car.gltf"), false), {target, true}, {bin, true}}) {
        SCOPED_TRACE(changed.toStdString());
        load(target);
        EXPECT_EQ(utime(changed.toUtf8(), nullptr), 0);
        EXPECT_FALSE(file.isChangedByOthers(target)) << "it holds the same";
        QByteArray bytes = bytesOf(changed);
        bytes[bytes.size() - 2] = '!';
        write(QDir(folder.path()).relativeFilePath(changed), bytes);
        EXPECT_EQ(file.isChangedByOthers(target), isAsked);
        EXPECT_FALSE(file.isChangedByOthers(path("a/another.gltf")));
        save(target);
        EXPECT_FALSE(file.isChangedByOthers(target)) << "it was written over";
    }
    const std::string data = jsonOf(target)["buffers"][0]["uri"];
    EXPECT_EQ(data, "data:application/octet-stream;base64," + corners(1).toBase64().toStdString());
    EXPECT_NE(bytesOf(bin), corners(1));
    load(write("a/car.gltf", sceneOf(fresh)));
    QFile::remove(bin);
    EXPECT_TRUE(file.isChangedByOthers(target));
    QFile::remove(target);
    EXPECT_FALSE(file.isChangedByOthers(target)) << "nothing would be lost";
}
