// A scene file: what can be read can be shown, selected and saved, and what was saved shows the
// same when it is read again.

#include "qxVariantWriter.h"

#include "Files/qxSceneFile.h"
#include "FuzzHost.h"
#include "qxSoakSteps.h"

#include <QDir>

namespace {

/// How an input goes on, of its own choice.
struct Course {
    explicit Course(unsigned choice) : number(choice) {}

    unsigned number;
    bool hasNewVariants() const { return number / 8 % 2 == 0; }
    bool isSaved() const { return number / 16 % 4 == 0; }
    bool isBinary() const { return number / 64 % 2 == 0; }
    bool isElsewhere() const { return number / 128 % 4 == 0; }
};

QString placeOf(const Course &course)
{
    const QString name = QLatin1String(course.isBinary() ? "saved.glb" : "saved.gltf");
    if (!course.isElsewhere())
        return FuzzHost::path(name);
    QDir(FuzzHost::path(QStringLiteral("elsewhere"))).removeRecursively();
    QDir().mkpath(FuzzHost::path(QStringLiteral("elsewhere")));
    return FuzzHost::path(QStringLiteral("elsewhere/") + name);
}

void saveAndReadAgain(qxSceneFile &file, const Course &course)
{
    const QString path = placeOf(course);
    const QStringList shown = FuzzHost::states();
    const int warnings = FuzzHost::warnings();
    file.setVariantsDocument(qxVariantWriter().write());
    if (FuzzHost::warnings() != warnings)
        return; // a name with characters that no document can hold is another one afterwards
    if (!file.save(path))
        return; // refused with a reason, such as extras of the file that are no object
    const QByteArray saved = FuzzHost::read(path);
    qxSceneFile again;
    FuzzHost::require(FuzzHost::open(again, path), "what was saved cannot be read again");
    FuzzHost::require(FuzzHost::states() == shown, "what was saved shows something else");
    FuzzHost::require(again.save(path), "what was saved cannot be saved again");
    FuzzHost::require(FuzzHost::read(path) == saved, "what was saved is saved differently");
}

void use(qxSceneFile &file, const Course &course)
{
    if (!FuzzHost::readDocument(file.variantsDocument()))
        return;
    if (course.hasNewVariants())
        qxSoakSteps::createAll();
    FuzzHost::selectSets();
    FuzzHost::selectStates(course.number);
    if (course.isSaved())
        saveAndReadAgain(file, course);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const Course course(FuzzHost::choiceOf(input));
    qxSceneFile file;
    if (FuzzHost::show(file, FuzzHost::write(QStringLiteral("scene.gltf"), input)))
        use(file, course);
    FuzzHost::clear();
    return 0;
}
