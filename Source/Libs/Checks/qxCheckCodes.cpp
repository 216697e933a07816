#include "qxCheckCodes.h"

#include <QCoreApplication>

// A list, not a procedure.
const QVector<qxCodeRow> &qxCheckCodes::all()
{
    using Code = qxCode;
    constexpr qxSeverity Error = qxSeverity::Error;
    constexpr qxSeverity Warning = qxSeverity::Warning;
    constexpr qxSeverity Hint = qxSeverity::Hint;
    constexpr qxSeverity Skip = qxSeverity::Skip;
    static const QVector<qxCodeRow> rows{
        {Code::UnreadableDocument, "QX101", Error, "document that cannot be read",
         "mend it at the place; no variant is loaded before. Nothing else is looked at"},
        {Code::ElementWithoutName, "QX102", Error, "element without a name",
         "give it one; it is skipped with all that is in it"},
        {Code::UnknownElement, "QX103", Warning, "unknown element", "remove it; saving does"},
        {Code::WordNeitherTrueNorFalse, "QX104", Warning, "word that is neither true nor false",
         "it reads as false"},
        {Code::UnreadableNumber, "QX105", Warning, "number that cannot be read", "it reads as 0"},
        {Code::PreviewWithoutPicture, "QX106", Warning, "preview without a picture",
         "make it anew; a preview is one CDATA section"},
        {Code::ValueWithoutName, "QX107", Warning, "value without a name",
         "give it one; it is skipped"},
        {Code::ForbiddenCharacter, "QX108", Warning, "character that XML forbids",
         "it is read as it is, other programs refuse the document; saving leaves it out"},

        {Code::SetTwice, "QX201", Error, QT_TRANSLATE_NOOP("qxCheckCodes", "two sets of one name"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "rename one; only the later one is loaded")},
        {Code::GroupTwice, "QX202", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "two groups of one name"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "rename one; the later one takes the place of the earlier")},
        {Code::VariantTwice, "QX203", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "two variants of one kind and name"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "merge them; the later one's options replace the earlier one's")},
        {Code::OptionTwice, "QX204", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "two options of one name"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "remove one; the first counts")},
        {Code::ReferenceTwice, "QX205", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "set refers to one variant twice"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "remove one; the last state counts")},
        {Code::NameTwice, "QX206", Hint,
         QT_TRANSLATE_NOOP("qxCheckCodes", "set lists one name twice"),
         QT_TRANSLATE_NOOP(
             "qxCheckCodes",
             "remove one: a viewpoint, animation, geometry, target or snapshot counts once")},

        {Code::NoSuchVariant, "QX301", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "set refers to a missing variant"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "create the variant, or remove the entry")},
        {Code::NoSuchOption, "QX302", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "state is no option of the variant"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "add the option, or choose another state")},
        {Code::StateUnknownToScene, "QX303", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "scene object does not take the state"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "restore the child, material or transform state, or choose another")},
        {Code::NoSuchViewpoint, "QX304", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "missing viewpoint"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "restore it, or remove the entry")},
        {Code::NoSuchDefaultViewpoint, "QX305", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "missing default viewpoint"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "restore it, or choose another")},
        {Code::NoSuchAnimation, "QX306", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "missing animation"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "restore it, or remove the entry")},
        {Code::NoSuchGeometry, "QX307", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "missing geometry"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "restore it, or remove the entry")},
        {Code::NoSuchTarget, "QX308", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "missing target node"),
         QT_TRANSLATE_NOOP(
             "qxCheckCodes",
             "restore it, or remove the entry; neither this target nor those behind it are shown")},
        {Code::NoSuchSnapshotPath, "QX309", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "snapshot of a missing node"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "capture the set anew")},
        {Code::NoSuchSnapshotMaterial, "QX310", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "snapshot of a missing material"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "capture the set anew")},
        {Code::FightingEntries, "QX311", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "two entries fight over one scene object"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "remove one; the later one wins, also over a target")},
        {Code::EqualSets, "QX312", Warning, QT_TRANSLATE_NOOP("qxCheckCodes", "two sets are equal"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "remove one; they differ in name, comment, hotkey or preview at most")},
        {Code::EmptySet, "QX313", Warning, QT_TRANSLATE_NOOP("qxCheckCodes", "set holds nothing"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "fill or remove it")},
        {Code::ScriptDoesNotCompile, "QX314", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "script does not compile"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "mend it at the line that the message names")},
        {Code::EmptyGroup, "QX315", Hint, QT_TRANSLATE_NOOP("qxCheckCodes", "group without sets"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "remove it")},

        {Code::NoSceneObject, "QX401", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "variant without a scene object"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "restore the node or material, or remove the variant")},
        {Code::WrongSceneObject, "QX402", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "scene object of another kind"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "a light variant needs a light, a material variant a switch material "
                           "with materials, a transform variant transform states")},
        {Code::DefaultIsNoOption, "QX403", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "default state is no option"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "choose another default")},
        {Code::OptionUnknownToScene, "QX404", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "scene object does not take the option"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "restore the child, material or transform state, or remove the option")},
        {Code::OptionWithoutName, "QX405", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "option without a name"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "remove it")},
        {Code::NoOptions, "QX406", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "variant without options"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "rebuild or remove it")},
        {Code::UnusedOption, "QX407", Hint,
         QT_TRANSLATE_NOOP("qxCheckCodes", "option that no set uses"),
         QT_TRANSLATE_NOOP(
             "qxCheckCodes",
             "neither a set nor a hotkey leads to it, by name or by a step; use or remove it")},
        {Code::UnusedVariant, "QX408", Hint,
         QT_TRANSLATE_NOOP("qxCheckCodes", "variant that no set uses"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "neither a set nor a hotkey uses it; use or remove it")},
        {Code::NestedSceneObjects, "QX409", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "scene object within another of its name"),
         QT_TRANSLATE_NOOP("qxCheckCodes",
                           "rename one: !Toggle flips them against each other when only one is "
                           "hidden. A node and its own mesh may have one name")},

        {Code::UnreadableHotkey, "QX501", Error,
         QT_TRANSLATE_NOOP("qxCheckCodes", "hotkey that names no key"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "write it as menus show it, such as Ctrl+Shift+F5")},
        {Code::HotkeyTwice, "QX502", Warning,
         QT_TRANSLATE_NOOP("qxCheckCodes", "hotkey used twice"),
         QT_TRANSLATE_NOOP("qxCheckCodes", "change one; sets and options share the keyboard")},

        {Code::SkippedNoVariant, "QX601", Skip, "the variant does not exist",
         "create it, or remove the entry"},
        {Code::SkippedNoObject, "QX602", Skip, "the scene has nothing of that name",
         "restore it, or give the variant another scene name"},
        {Code::SkippedNoSwitchMaterial, "QX603", Skip, "the material is no switch material",
         "make a switch material of it"},
        {Code::SkippedEmptySwitchMaterial, "QX604", Skip, "the switch material is empty",
         "add materials"},
        {Code::SkippedNoSuchMaterial, "QX605", Skip, "the switch material lacks the material",
         "add it, or choose another state"},
        {Code::SkippedNoLight, "QX606", Skip, "the node is no light",
         "give the variant another scene name"},
        {Code::SkippedNoLightState, "QX607", Skip, "lights do not know the state",
         "use !Enable, !Disable or !Toggle"},
        {Code::SkippedNoTransforms, "QX608", Skip, "the node has no transform states",
         "record some"},
        {Code::SkippedNoSuchTransform, "QX609", Skip, "the node lacks the transform state",
         "record it, or choose another"},
        {Code::SkippedNoSwitch, "QX610", Skip, "the node is no switch",
         "it can only be shown and hidden"},
        {Code::SkippedNoSuchChild, "QX611", Skip, "the switch lacks the child",
         "restore it; the log has an error line for this one"},
        {Code::SkippedNoTransformNumber, "QX612", Skip, "the state names no transform",
         "the transform switch goes to its first state instead"},
        {Code::SkippedTransformOutOfRange, "QX613", Skip, "the transform switch has fewer states",
         "it takes a number that it has no state for"},
        {Code::SkippedNoOverlayState, "QX614", Skip, "the overlay does not know the state",
         "restore the child, or choose another state"},
        {Code::SkippedViewpoint, "QX615", Skip, "the viewpoint does not exist",
         "restore it, or remove the entry"},
        {Code::SkippedFurtherViewpoint, "QX616", Skip, "only the first viewpoint is used",
         "nothing; the others are kept for other uses"},
        {Code::SkippedDefaultViewpoint, "QX617", Skip, "the default viewpoint does not exist",
         "restore it, or choose another"},
        {Code::SkippedAnimation, "QX618", Skip, "the animation does not exist",
         "restore it, or remove the entry"},
        {Code::SkippedForLaterTurn, "QX619", Skip, "the animation waits for its turn",
         "nothing; animations in turn start one per selection"},
        {Code::SkippedScript, "QX620", Skip, "scripts are not run here",
         "nothing; workbench select runs them, if they are trusted"},
        {Code::SkippedClipping, "QX621", Skip, "the clipping state has no meaning", "use 0 to 3"},
        {Code::SkippedTarget, "QX622", Skip, "a target node is missing",
         "restore it; neither it nor the targets behind it are shown"},
        {Code::SkippedTargetsOff, "QX623", Skip, "the set does not include nodes",
         "its targets are not shown"},
        {Code::SkippedGeometry, "QX624", Skip, "geometries are shown on request only", "nothing"},
        {Code::SkippedSnapshot, "QX625", Skip, "snapshots are applied on request only", "nothing"},
        {Code::ChangedAgain, "QX626", Skip, "a later entry changes it again", "remove one of them"},
        {Code::NotShown, "QX627", Error, "the scene shows something else",
         "a listener or another entry interfered"},
    };
    return rows;
}

const qxCodeRow &qxCheckCodes::row(qxCode code)
{
    return all()[int(code)];
}

QString qxCheckCodes::id(qxCode code)
{
    return QString::fromLatin1(row(code).id);
}

QString qxCheckCodes::word(qxSeverity severity)
{
    static const char *const words[] = {"error", "warning", "hint", "skip"};
    return QString::fromLatin1(words[int(severity)]);
}
