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

// Attributes of InclInfo.
inline const QString inclNodes = QStringLiteral("inclNodes");
inline const QString inclMats = QStringLiteral("inclMats");
inline const QString inclLights = QStringLiteral("inclLights");
inline const QString inclEnv = QStringLiteral("inclEnv");
inline const QString inclView = QStringLiteral("inclView");

// Attributes of Analyzer.
inline const QString clipState = QStringLiteral("clipState");
inline const QString clipPlanePositionX = QStringLiteral("clipPlanePositionX");
inline const QString clipPlanePositionY = QStringLiteral("clipPlanePositionY");
inline const QString clipPlanePositionZ = QStringLiteral("clipPlanePositionZ");
inline const QString clipPlaneNormalX = QStringLiteral("clipPlaneNormalX");
inline const QString clipPlaneNormalY = QStringLiteral("clipPlaneNormalY");
inline const QString clipPlaneNormalZ = QStringLiteral("clipPlaneNormalZ");
inline const QString clipPlaneInvert = QStringLiteral("clipPlaneInvert");
inline const QString clipPlaneHideScene = QStringLiteral("clipPlaneHideScene");
inline const QString clipPlaneShow = QStringLiteral("clipPlaneShow");
inline const QString clipPlaneColorR = QStringLiteral("clipPlaneColorR");
inline const QString clipPlaneColorG = QStringLiteral("clipPlaneColorG");
inline const QString clipPlaneColorB = QStringLiteral("clipPlaneColorB");
inline const QString clipGridShow = QStringLiteral("clipGridShow");
inline const QString clipGridColorR = QStringLiteral("clipGridColorR");
inline const QString clipGridColorG = QStringLiteral("clipGridColorG");
inline const QString clipGridColorB = QStringLiteral("clipGridColorB");
inline const QString clipContourShow = QStringLiteral("clipContourShow");
inline const QString clipContourColorR = QStringLiteral("clipContourColorR");
inline const QString clipContourColorG = QStringLiteral("clipContourColorG");
inline const QString clipContourColorB = QStringLiteral("clipContourColorB");
inline const QString clipContourWidth = QStringLiteral("clipContourWidth");

/// All of them that are written, in the order in which those of one element stand.
inline const QString attributes[] = {name,
                                     base,
                                     comment,
                                     visible,
                                     defaultViewpoint,
                                     ref,
                                     state,
                                     nodePath,
                                     materialName,
                                     inclNodes,
                                     inclMats,
                                     inclLights,
                                     inclEnv,
                                     inclView,
                                     clipState,
                                     clipPlanePositionX,
                                     clipPlanePositionY,
                                     clipPlanePositionZ,
                                     clipPlaneNormalX,
                                     clipPlaneNormalY,
                                     clipPlaneNormalZ,
                                     clipPlaneInvert,
                                     clipPlaneHideScene,
                                     clipPlaneShow,
                                     clipPlaneColorR,
                                     clipPlaneColorG,
                                     clipPlaneColorB,
                                     clipGridShow,
                                     clipGridColorR,
                                     clipGridColorG,
                                     clipGridColorB,
                                     clipContourShow,
                                     clipContourColorR,
                                     clipContourColorG,
                                     clipContourColorB,
                                     clipContourWidth};

// The two texts of a flag that is written as a word.
inline const QString trueWord = QStringLiteral("true");
inline const QString falseWord = QStringLiteral("false");

} // namespace qxDocumentNames
