#include "FuzzHost.h"

#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "Script/qxScriptRunner.h"
#include "TestScene.h"
#include "qxHost.h"
#include "qxLog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>

#include <cstdio>
#include <cstdlib>

namespace {

/// How many of a list are tried.
constexpr int Enough = 12;

int errors = 0;
int warningCount = 0;

/// Never destroyed: statics of others that use it are destroyed later.
qxHost *host = nullptr;

const QTemporaryDir &folder()
{
    static const QTemporaryDir made;
    return made;
}

bool isText(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 && !bytes.contains('\0');
}

} // namespace

#ifdef QX_FUZZ
/// Most of the time would go into freed memory that is kept aside, and into stacks of allocations.
extern "C" const char *__asan_default_options()
{
    return "detect_leaks=0:quarantine_size_mb=1:thread_local_quarantine_size_kb=64"
           ":malloc_context_size=1:max_malloc_fill_size=0";
}
#endif

qxHost &FuzzHost::start()
{
    if (host)
        return *host;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qSetGlobalQHashSeed(0); // an input does the same each time
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    new QApplication(count, arguments);
    host = new qxHost;
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxLog::addListener([](qxLog::Level level, const std::string &) {
        errors += level == qxLog::Error;
        warningCount += level == qxLog::Warning;
    });
    return *host;
}

void FuzzHost::clear()
{
    host->clearScene();
}

QString FuzzHost::path(const QString &name)
{
    return folder().filePath(name);
}

QString FuzzHost::write(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "no place for files");
    return file.fileName();
}

QByteArray FuzzHost::read(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "no such file");
    return file.readAll();
}

bool FuzzHost::show(qxSceneFile &file, const QString &path)
{
    return file.load(path, [](qxSceneFile::Step next) {
        if (next == qxSceneFile::Showing)
            clear();
    });
}

bool FuzzHost::open(qxSceneFile &file, const QString &path)
{
    return show(file, path) && readDocument(file.variantsDocument());
}

bool FuzzHost::readDocument(const QByteArray &document)
{
    if (document.isEmpty())
        return true;
    const int before = errors;
    if (!isText(document))
        return false;
    qxVariantReader().read(document.constData());
    return errors == before;
}

int FuzzHost::warnings()
{
    return warningCount;
}

// Built, not read: reading a file takes longer than what is done with most documents.
void FuzzHost::showWorkshop()
{
    clear();
    TestScene scene;
    scene.addClone(scene.addSwitch("WheelSwitch", {"Steel", "Alloy"}));
    scene.addTransformSwitch("Lid", 2);
    scene.addPoses("DoorNode", {"Shut", "Open"});
    scene.addLight("LampNode");
    scene.addSwitchMaterial("PaintSwitch", {"Red", "Blue"});
    scene.addGeometry("Body", scene.material("PaintSwitch"));
    scene.addMaterialGroup("Shell", scene.material("Red"));
    scene.addOverlaySwitch("LogoOverlay", {"Page 1"});
    scene.addEnvironments("Sky", {"Day"});
    scene.addViewpoint("Front");
    scene.addViewpoint("Back", 1);
    scene.setClips({"Spin", "Blink"});
}

void FuzzHost::require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "finding: %s\n", what);
    std::abort();
}

/// A node without a name is known by the type of its core, and a place that components cannot tell
/// comes back as another type: variants of that name are left out.
QStringList FuzzHost::states()
{
    static const QStringList types{"Group", "Transform", "ComponentTransform"};
    QStringList states;
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        if (!types.contains(variant.name))
            states << QStringLiteral("%1 %2: %3").arg(kind.word, variant.name, variant.onCurrent());
    });
    return states;
}

void FuzzHost::selectStates(unsigned choice)
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        int left = Enough;
        kind->visit([&](qxVariant &variant) {
            if (left-- > 0 && !variant.options.empty())
                variant.onSelect(variant.options[choice % variant.options.size()].name);
        });
    }
}

void FuzzHost::selectSets()
{
    int left = Enough;
    for (qxVariantSet *set : qxVariants::_variantSets) {
        if (left-- == 0)
            return;
        set->select(true, false);
        set->selectDefault();
    }
}

unsigned FuzzHost::choiceOf(const QByteArray &input)
{
    return qHash(input, 0);
}
