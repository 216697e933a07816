#pragma once

#include <QString>

/// The element and attribute names of the variants document, but for the elements of variants and
/// of references to them: those are columns of qxVariantKinds.
namespace qxDocumentNames {

// The root and its children.
inline const QString Variants = QStringLiteral("Variants");
inline const QString VariantGroup = QStringLiteral("VariantGroup");
inline const QString VariantSet = QStringLiteral("VariantSet");

// Children of a set.
inline const QString Hotkey = QStringLiteral("Hotkey");
inline const QString SequentialAnimation = QStringLiteral("SequentialAnimation");
inline const QString Script = QStringLiteral("Script");
inline const QString Preview = QStringLiteral("Preview");
inline const QString ViewpointRef = QStringLiteral("ViewpointRef");
inline const QString AnimationRef = QStringLiteral("AnimationRef");
inline const QString GeometryRef = QStringLiteral("GeometryRef");
inline const QString TargetName = QStringLiteral("TargetName");
inline const QString InclInfo = QStringLiteral("InclInfo");
inline const QString MaterialSnapshot = QStringLiteral("MaterialSnapshot");
inline const QString Value = QStringLiteral("Value");
inline const QString Analyzer = QStringLiteral("Analyzer");

// Children of a variant; a state has a hotkey, too.
inline const QString Default = QStringLiteral("Default");
inline const QString State = QStringLiteral("State");

// Attributes of groups, sets, variants and references.
inline const QString name = QStringLiteral("name");
inline const QString comment = QStringLiteral("comment");
inline const QString visible = QStringLiteral("visible");
inline const QString script = QStringLiteral("script");
inline const QString defaultViewpoint = QStringLiteral("default-viewpoint");
inline const QString base = QStringLiteral("base");
inline const QString ref = QStringLiteral("ref");
inline const QString state = QStringLiteral("state");
inline const QString nodePath = QStringLiteral("nodePath");
inline const QString materialName = QStringLiteral("materialName");

/// Attributes of InclInfo, for each qxInclusion.
inline const QString inclusions[] = {QStringLiteral("inclNodes"), QStringLiteral("inclMats"),
                                     QStringLiteral("inclLights"), QStringLiteral("inclEnv"),
                                     QStringLiteral("inclView")};

/// An element of a list of names, and its attribute that holds the name.
struct NameElement {
    const QString &tag;
    const QString &attribute;
};

/// Those of each qxNameList.
inline const NameElement nameElements[] = {
    {ViewpointRef, ref}, {AnimationRef, ref}, {GeometryRef, ref}, {TargetName, name}};

/// All attributes that are written but those of Analyzer, which qxClippingField has, in the order
/// in which those of one element stand.
inline const QString attributes[] = {
    name,          base,          comment,       visible,      defaultViewpoint,
    ref,           state,         nodePath,      materialName, inclusions[0],
    inclusions[1], inclusions[2], inclusions[3], inclusions[4]};

// The two texts of a flag that is written as a word.
inline const QString trueWord = QStringLiteral("true");
inline const QString falseWord = QStringLiteral("false");

} // namespace qxDocumentNames
