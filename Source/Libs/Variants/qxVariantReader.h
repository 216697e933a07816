#pragma once

#include <QDomDocument>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;
class qxVariant;
class qxVariantGroup;
class qxVariantSet;

/// Turns a variants document into groups, sets and variants of the registry, which owns them.
///
/// The registry is not emptied first. An element without a name is skipped with all that is in it,
/// unknown elements and attributes are ignored, and a number that does not parse is 0.
class qxVariantReader {
public:
    /// Reads a whole document, a NUL-terminated UTF-8 text, and announces the change of everything
    /// once at the end. A malformed one is reported in the log and changes nothing; so is one that
    /// declares entities or is nested deeper than any document of ours.
    void read(const char *xml);

    /// Reads one group with its sets in place of a group of the same name. Null for an element
    /// without a name, and when a listener removed the group. What is replaced is announced as
    /// removed; what is read is not announced.
    static qxVariantGroup *readVariantGroup(QDomElement &element);
    /// Reads one set. With `replace` it takes the place of a set of the same name, else it gets a
    /// name of its own. Null for an element without a name. Only what is replaced is announced.
    static qxVariantSet *readVariantSet(QDomElement &element, bool replace);

    ///@{
    /// Reads one variant. An existing one of that name gets the options of the element instead of
    /// its own and stays where it is in memory. Null for an element without a name. A material
    /// variant gets the switch material that it drives, if the scene does not have it. Nothing but
    /// that is announced, on the module bus.
    static qxNodeVariant *readNodeVariant(QDomElement &element);
    static qxMaterialVariant *readMaterialVariant(QDomElement &element);
    static qxLightVariant *readLightVariant(QDomElement &element);
    static qxOverlayVariant *readOverlayVariant(QDomElement &element);
    static qxTransformVariant *readTransformVariant(QDomElement &element);
    ///@}
    /// Reads a node, material or light variant after the element's tag; null for any other element.
    static qxVariant *readVariant(QDomElement &element);

    /// Gives the overlay references of older documents, which listed the shown overlays without a
    /// state, explicit states in all sets.
    static void fixOverlayVariants();

    /// The key-sequence text for a hotkey of any age: "Ctrl-Shift F1" becomes "Ctrl+Shift+F1".
    static QString convertOldHotkey(QString text);

private:
    QDomDocument m_document; ///< the document that was read last
};
