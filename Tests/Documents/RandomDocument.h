#pragma once

#include "qxDocument.h"

#include <initializer_list>
#include <random>

/// Makes random documents, settled as a registry gives them, and edits them as people do. The same
/// for the same seed, on every machine.
class RandomDocument {
public:
    explicit RandomDocument(unsigned seed) : m_engine(seed) {}

    /// Up to so many groups, sets outside of groups, and variants of each kind, with contents.
    qxDocument make(unsigned size = 3);

    /// What edits may do.
    enum Edits {
        Contents = 1, ///< change, add and remove what sets and variants hold, and their settings
        Things = 2, ///< add and remove groups, sets and variants
        Orders = 4, ///< move things and entries to other places
        Groups = 8, ///< move sets to other groups
        Renames = 16, ///< give groups, sets, variants and options other names, references follow
        Everything = 31
    };
    /// Makes so many edits of these sorts; the document stays settled.
    void edit(qxDocument &document, int count = 1, int sorts = Everything);

    /// A number below `count`.
    unsigned below(std::size_t count) { return unsigned(m_engine() % count); }
    bool percent(unsigned chance) { return below(100) < chance; }

private:
    template <class T>
    T of(std::initializer_list<T> values)
    {
        return values.begin()[below(values.size())];
    }
    QString name(const char *kind);
    QString freeName(const char *kind);
    QString text();
    QString hotkey();
    QByteArray preview();
    qxDocumentReference reference(const qxDocument &document);
    qxDocumentSet set(const qxDocument &document, const QString &name);
    qxDocumentVariant variant(const qxVariantKind &kind, const QString &name);
    void editClipping(qxAnalyzerVariant &clipping);
    void editContents(qxDocument &document);
    void editSet(const qxDocument &document, qxDocumentSet &set);
    void editSettings(qxDocumentSet &set);
    void editVariant(qxDocumentVariant &variant);
    void editThings(qxDocument &document);
    void editOrders(qxDocument &document);
    void editGroups(qxDocument &document);
    void editNames(qxDocument &document);
    void renameOption(qxDocument &document, qxDocumentVariant &variant);
    template <class List>
    void move(List &list);
    template <class List>
    void toggle(List &list, const QString &text, const QString &more = QString());

    std::mt19937 m_engine;
    int m_count = 0; ///< of names that are used once
};
