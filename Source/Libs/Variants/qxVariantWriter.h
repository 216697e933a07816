#pragma once

#include <QDomDocument>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;
class qxVariantGroup;
class qxVariantSet;

/// Turns the registry into a variants document.
///
/// What the registry holds is written as it stands, except for characters that no document can
/// hold: they are left out, and the log says in how many texts. A name that would become empty or
/// another's is written as one that nothing else has, which the log says, too.
class qxVariantWriter {
public:
    /// The whole registry as UTF-8.
    QByteArray write();
    /// The same bytes to compare with; the log hears nothing, for nothing is saved.
    QByteArray writeToCompare();
    /// The text as a document holds it.
    static QString writable(const QString &text);

    ///@{
    /// Each of these appends one element to `parent`, a group's with those of its sets; null is not
    /// allowed.
    static void writeVariantGroup(QDomDocument &document, QDomElement &parent,
                                  qxVariantGroup *group);
    static void writeVariantSet(QDomDocument &document, QDomElement &parent, qxVariantSet *set);
    static void writeNodeVariant(QDomDocument &document, QDomElement &parent,
                                 qxNodeVariant *variant);
    static void writeMaterialVariant(QDomDocument &document, QDomElement &parent,
                                     qxMaterialVariant *variant);
    static void writeLightVariant(QDomDocument &document, QDomElement &parent,
                                  qxLightVariant *variant);
    static void writeOverlayVariant(QDomDocument &document, QDomElement &parent,
                                    qxOverlayVariant *variant);
    static void writeTransformVariant(QDomDocument &document, QDomElement &parent,
                                      qxTransformVariant *variant);
    ///@}

private:
    QDomDocument m_document; ///< the document that was written last
};
