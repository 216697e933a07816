#pragma once

#include "Files/qxSceneFile.h"
#include "Undo/qxSetEdits.h"
#include "qxPlainRegistry.h"

#include <functional>
#include <memory>

class qxHost;
class qxVariantSet;

/// Random steps of a user, a script or a program with a scene and its variants, taken both on the
/// module and on a plain model. Both must be equal after each step.
///
/// The scene comes from a file. Variants drive only its objects; the model knows what it shows.
class qxSoakSteps {
public:
    /// A number below the given one: from the bytes of an input, or at random.
    typedef std::function<unsigned(unsigned)> Choice;

    /// Opens the scene, which must be readable. `place` is where it is saved and read again.
    qxSoakSteps(qxHost &host, const QString &scene, const QString &place, const Choice &choice);

    /// Takes one step. Returns what is wrong after it, or an empty text.
    QString take();
    /// Makes variants of everything in the scene that can vary.
    static void createAll();
    /// What the last step was.
    QString last() const { return m_last; }

private:
    /// What a variant drives, and what it shows now.
    struct Object {
        int kind;
        QString name;
        QStringList states;
        int shown;
    };
    typedef void (qxSoakSteps::*Step)();
    struct Row;

    static const std::vector<Row> &rows();
    QString check() const;
    QString checkShown() const;
    void fail(const QString &what) { m_failure = what; }
    /// One of the names; empty when there is none.
    template <class List>
    QString nameIn(const List &list)
    {
        return list.empty() ? QString() : list[m_choice(unsigned(list.size()))].name;
    }
    QString text();
    Object &object();
    Object *objectOf(int kind, const QString &base);
    qxPlainVariant *anyVariant(int &kind);
    void open(const QString &path);
    void readAgain(const QByteArray &document);
    void apply(int kind, const QString &variant, const QString &state);
    QString stateFor(const Object &driven);

    void createVariant();
    void createNamedVariant();
    void removeVariant();
    void renameVariant();
    void editVariant();
    void clearKind();
    void createSet();
    void removeSet();
    void renameSet();
    void addReference();
    void removeReference();
    void editSet();
    void useHandle();
    void createGroup();
    void removeGroup();
    void editGroup();
    void moveSet();
    void clearEmpty();
    void selectState();
    void selectSet();
    void captureAndShowAgain();
    void editAsUser();
    void undoEdits();
    void lookOver();
    void writeAndRead();
    void saveAndOpen();
    void startAgain();

    qxHost &m_host;
    const QString m_scene;
    const QString m_place;
    const Choice m_choice;
    std::unique_ptr<qxSceneFile> m_file;
    qxPlainRegistry m_model;
    std::vector<Object> m_objects;
    qxSetEdits m_edits;
    QString m_last;
    QString m_failure;
};
