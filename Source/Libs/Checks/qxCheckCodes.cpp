#include "qxCheckCodes.h"

// A list, not a procedure.
const QVector<qxCodeRow> &qxCheckCodes::all()
{
    using Code = qxCode;
    constexpr qxSeverity Error = qxSeverity::Error;
    constexpr qxSeverity Warning = qxSeverity::Warning;
    constexpr qxSeverity Hint = qxSeverity::Hint;
    constexpr qxSeverity Skip = qxSeverity::Skip;
    static const QVector<qxCodeRow> rows{
        {Code::UnreadableDocument, "QX101", Error, "document that cannot be read"},
        {Code::ElementWithoutName, "QX102", Error, "element without a name"},
        {Code::UnknownElement, "QX103", Warning, "unknown element"},
        {Code::WordNeitherTrueNorFalse, "QX104", Warning, "word that is neither true nor false"},
        {Code::UnreadableNumber, "QX105", Warning, "number that cannot be read"},
        {Code::PreviewWithoutPicture, "QX106", Warning, "preview without a picture"},
        {Code::ValueWithoutName, "QX107", Warning, "value without a name"},
        {Code::ForbiddenCharacter, "QX108", Warning, "character that XML forbids"},

        {Code::SetTwice, "QX201", Error, "two sets of one name"},
        {Code::GroupTwice, "QX202", Error, "two groups of one name"},
        {Code::VariantTwice, "QX203", Error, "two variants of one kind and name"},
        {Code::OptionTwice, "QX204", Warning, "two options of one name"},
        {Code::ReferenceTwice, "QX205", Warning, "set refers to one variant twice"},
        {Code::NameTwice, "QX206", Hint, "set lists one name twice"},

        {Code::NoSuchVariant, "QX301", Error, "set refers to a missing variant"},
        {Code::NoSuchOption, "QX302", Error, "state is no option of the variant"},
        {Code::StateUnknownToScene, "QX303", Error, "scene object does not take the state"},
        {Code::NoSuchViewpoint, "QX304", Error, "missing viewpoint"},
        {Code::NoSuchDefaultViewpoint, "QX305", Error, "missing default viewpoint"},
        {Code::NoSuchAnimation, "QX306", Error, "missing animation"},
        {Code::NoSuchGeometry, "QX307", Error, "missing geometry"},
        {Code::NoSuchTarget, "QX308", Error, "missing target node"},
        {Code::NoSuchSnapshotPath, "QX309", Error, "snapshot of a missing node"},
        {Code::NoSuchSnapshotMaterial, "QX310", Error, "snapshot of a missing material"},
        {Code::FightingEntries, "QX311", Warning, "two entries fight over one scene object"},
        {Code::EqualSets, "QX312", Warning, "two sets are equal"},
        {Code::EmptySet, "QX313", Warning, "set holds nothing"},
        {Code::ScriptDoesNotCompile, "QX314", Error, "script does not compile"},
        {Code::EmptyGroup, "QX315", Hint, "group without sets"},

        {Code::NoSceneObject, "QX401", Error, "variant without a scene object"},
        {Code::WrongSceneObject, "QX402", Error, "scene object of another kind"},
        {Code::DefaultIsNoOption, "QX403", Error, "default state is no option"},
        {Code::OptionUnknownToScene, "QX404", Error, "scene object does not take the option"},
        {Code::OptionWithoutName, "QX405", Error, "option without a name"},
        {Code::NoOptions, "QX406", Warning, "variant without options"},
        {Code::UnusedOption, "QX407", Hint, "option that no set uses"},
        {Code::UnusedVariant, "QX408", Hint, "variant that no set uses"},
        {Code::NestedSceneObjects, "QX409", Warning, "scene object within another of its name"},

        {Code::UnreadableHotkey, "QX501", Error, "hotkey that names no key"},
        {Code::HotkeyTwice, "QX502", Warning, "hotkey used twice"},

        {Code::SkippedNoVariant, "QX601", Skip, "the variant does not exist"},
        {Code::SkippedNoObject, "QX602", Skip, "the scene has nothing of that name"},
        {Code::SkippedNoSwitchMaterial, "QX603", Skip, "the material is no switch material"},
        {Code::SkippedEmptySwitchMaterial, "QX604", Skip, "the switch material is empty"},
        {Code::SkippedNoSuchMaterial, "QX605", Skip, "the switch material lacks the material"},
        {Code::SkippedNoLight, "QX606", Skip, "the node is no light"},
        {Code::SkippedNoLightState, "QX607", Skip, "lights do not know the state"},
        {Code::SkippedNoTransforms, "QX608", Skip, "the node has no transform states"},
        {Code::SkippedNoSuchTransform, "QX609", Skip, "the node lacks the transform state"},
        {Code::SkippedNoSwitch, "QX610", Skip, "the node is no switch"},
        {Code::SkippedNoSuchChild, "QX611", Skip, "the switch lacks the child"},
        {Code::SkippedNoTransformNumber, "QX612", Skip, "the state names no transform"},
        {Code::SkippedTransformOutOfRange, "QX613", Skip, "the transform switch has fewer states"},
        {Code::SkippedNoOverlayState, "QX614", Skip, "the overlay does not know the state"},
        {Code::SkippedViewpoint, "QX615", Skip, "the viewpoint does not exist"},
        {Code::SkippedFurtherViewpoint, "QX616", Skip, "only the first viewpoint is used"},
        {Code::SkippedDefaultViewpoint, "QX617", Skip, "the default viewpoint does not exist"},
        {Code::SkippedAnimation, "QX618", Skip, "the animation does not exist"},
        {Code::SkippedForLaterTurn, "QX619", Skip, "the animation waits for its turn"},
        {Code::SkippedScript, "QX620", Skip, "scripts are not run here"},
        {Code::SkippedClipping, "QX621", Skip, "the clipping state has no meaning"},
        {Code::SkippedTarget, "QX622", Skip, "a target node is missing"},
        {Code::SkippedTargetsOff, "QX623", Skip, "the set does not include nodes"},
        {Code::SkippedGeometry, "QX624", Skip, "geometries are shown on request only"},
        {Code::SkippedSnapshot, "QX625", Skip, "snapshots are applied on request only"},
        {Code::ChangedAgain, "QX626", Skip, "a later entry changes it again"},
        {Code::NotShown, "QX627", Error, "the scene shows something else"},
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
