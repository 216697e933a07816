#pragma once

#include <QString>
#include <QVector>

/// How much a finding weighs.
enum class qxSeverity {
    Error, ///< something cannot work
    Warning, ///< something works, but is probably a mistake
    Hint, ///< nothing is wrong, but something is not needed
    Skip ///< a part of a selection that silently does nothing
};

/// What checks can find. The names stand in the program; users see the stable code of each, which
/// Docs/Checking.md explains. Neither a name's code nor its meaning ever changes; new ones are
/// added at the end of their block.
enum class qxCode {
    UnreadableDocument,
    ElementWithoutName,
    UnknownElement,
    WordNeitherTrueNorFalse,
    UnreadableNumber,
    PreviewWithoutPicture,
    ValueWithoutName,
    ForbiddenCharacter,

    SetTwice,
    GroupTwice,
    VariantTwice,
    OptionTwice,
    ReferenceTwice,
    NameTwice,

    NoSuchVariant,
    NoSuchOption,
    StateUnknownToScene,
    NoSuchViewpoint,
    NoSuchDefaultViewpoint,
    NoSuchAnimation,
    NoSuchGeometry,
    NoSuchTarget,
    NoSuchSnapshotPath,
    NoSuchSnapshotMaterial,
    FightingEntries,
    EqualSets,
    EmptySet,
    ScriptDoesNotCompile,
    EmptyGroup,

    NoSceneObject,
    WrongSceneObject,
    DefaultIsNoOption,
    OptionUnknownToScene,
    OptionWithoutName,
    NoOptions,
    UnusedOption,
    UnusedVariant,
    NestedSceneObjects,

    UnreadableHotkey,
    HotkeyTwice,

    SkippedNoVariant,
    SkippedNoObject,
    SkippedNoSwitchMaterial,
    SkippedEmptySwitchMaterial,
    SkippedNoSuchMaterial,
    SkippedNoLight,
    SkippedNoLightState,
    SkippedNoTransforms,
    SkippedNoSuchTransform,
    SkippedNoSwitch,
    SkippedNoSuchChild,
    SkippedNoTransformNumber,
    SkippedTransformOutOfRange,
    SkippedNoOverlayState,
    SkippedViewpoint,
    SkippedFurtherViewpoint,
    SkippedDefaultViewpoint,
    SkippedAnimation,
    SkippedForLaterTurn,
    SkippedScript,
    SkippedClipping,
    SkippedTarget,
    SkippedTargetsOff,
    SkippedGeometry,
    SkippedSnapshot,
    ChangedAgain,
    NotShown
};

/// One row of the list of codes.
struct qxCodeRow {
    qxCode code; ///< as the program knows it
    const char *id; ///< stable, such as "QX301"
    qxSeverity severity; ///< the same for all findings of the code
    const char *title; ///< what it means, in a few words
    const char *advice; ///< what to do about it
};

/// What belongs to each code.
namespace qxCheckCodes {

/// All codes in the order of their ids.
const QVector<qxCodeRow> &all();
/// The row of that code; every code has one.
const qxCodeRow &row(qxCode code);
/// The stable id of that code, such as "QX301".
QString id(qxCode code);
/// "error", "warning", "hint" or "skip".
QString word(qxSeverity severity);

} // namespace qxCheckCodes
