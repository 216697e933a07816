#include "qxNamedList.h"
#include "qxStateList.h"
#include "qxUniqueNames.h"

#include <QTextStream>

#include <gtest/gtest.h>

#include <memory>
#include <random>

struct Named {
    QString name;
};

/// Few names, so that twins are common; the first one is empty.
static QString nameOf(unsigned int number)
{
    return number == 0 ? QString() : QStringLiteral("Name%1").arg(number);
}

/// The ways in which the code of others changes a text that it can reach.
void (*const changes[])(QString &name, QString text) = {
    [](QString &name, QString text) { name = text; },
    [](QString &name, QString text) { name.swap(text); },
    [](QString &name, QString text) { std::exchange(name, text); },
    [](QString &name, QString text) { name.remove(0, name.size()).append(text); },
    [](QString &name, QString text) { QTextStream(&text) >> name; },
};

// The list is compared with the plainest one that does the same.
TEST(NamedListTest, FindsTheFirstOfANameHoweverNamesAreChanged)
{
    std::mt19937 random(1);
    std::vector<std::unique_ptr<Named>> objects;
    std::vector<Named *> model;
    qxNamedList<Named> list;
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        // Grows beyond what is searched without an index, and shrinks again.
        const std::size_t kind = random() % (round % 1000 < 600 ? 7 : 9);
        const std::size_t index = random() % (model.size() + 1);
        const QString name = nameOf(random() % 30);
        if (kind < 4 || index == model.size()) {
            objects.push_back(std::make_unique<Named>(Named{name}));
            list.append(objects.back().get());
            model.push_back(objects.back().get());
        } else if (kind < 6) {
            changes[random() % 5](model[index]->name, name);
        } else {
            Named *const object = model[index];
            changes[random() % 5](object->name, name);
            list.take(object);
            object->name = "taken";
            model.erase(model.begin() + std::ptrdiff_t(index));
        }
        ASSERT_EQ(std::vector<Named *>(list.begin(), list.end()), model);
        ASSERT_EQ(list.size(), model.size());
        const std::size_t middle = model.size() / 2;
        ASSERT_TRUE(model.empty() || round % 7 || list[middle] == model[middle]);
        // In long lists the first of twins counts from the next miss on.
        for (const bool hasMissed : {false, true}) {
            for (unsigned int number = 0; number < 30; ++number) {
                const QString wanted = nameOf((number + unsigned(round)) % 30);
                const auto first = std::find_if(model.begin(), model.end(), [&](Named *each) {
                    return !wanted.isEmpty() && each->name == wanted;
                });
                Named *const expected = first == model.end() ? nullptr : *first;
                Named *const found = list.find(wanted);
                ASSERT_EQ(found ? found->name : "none", expected ? wanted : "none");
                ASSERT_TRUE(!hasMissed || found == expected);
            }
            list.find("Nobody");
        }
    }
    EXPECT_EQ(list.takeAll(), model);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.find("Name1"), nullptr);
}

TEST(NamedListTest, GoingOverItBearsChanges)
{
    std::vector<Named> objects(60);
    qxNamedList<Named> list;
    for (std::size_t i = 0; i < 50; ++i)
        list.append(&objects[i]);
    std::vector<Named *> met;
    const qxNamedList<Named>::Walk walk(list);
    for (Named *each : list) {
        met.push_back(each);
        if (met.size() < 40) {
            list.take(each);
            if (!list.empty())
                list.take(list.back());
        }
        if (met.size() % 10 == 0)
            list.append(&objects[50 + met.size() / 10]);
        if (met.size() == 30)
            list.takeAll();
        ASSERT_LE(met.size(), 60u);
    }
    EXPECT_EQ(met.at(24), &objects[24]);
}

TEST(NamedListTest, MissesAreBelievedOnlyWhereNamesAreSaidNotToChange)
{
    std::vector<Named> objects(40);
    qxNamedList<Named> list;
    for (Named &each : objects) {
        each.name = nameOf(unsigned(&each - objects.data()) + 1);
        list.append(&each);
    }
    const qxUnchangedNames unchanged;
    EXPECT_EQ(list.find("New"), nullptr);
    objects[7].name = "New";
    EXPECT_EQ(list.find("New"), nullptr); // Else reading and capturing take quadratic time.
    const qxUnchangedNames::Pause listeners;
    EXPECT_EQ(list.find("New"), &objects[7]);
}

TEST(StateListTest, KeepsOneEntryPerVariantHoweverEntriesAreEdited)
{
    std::mt19937 random(2);
    qxStateList list;
    std::vector<std::pair<QString, QString>> model;
    for (int round = 0; round < 4000; ++round) {
        const QString name = nameOf(random() % 60);
        const QString other = nameOf(random() % 60);
        list.find("Nobody"); // The first of twins counts.
        const auto known = std::find_if(model.begin(), model.end(),
                                        [&](const auto &each) { return each.first == name; });
        if (qxVariantState *found = round % 5 == 0 ? list.find(name) : nullptr) {
            changes[random() % 5](found->variant, other); // Makes twins.
            known->first = other;
        } else if (random() % 3 == 0) {
            list.remove(name);
            if (known != model.end())
                model.erase(known);
        } else {
            list.add(name, other);
            if (known == model.end())
                model.push_back({name, other});
            else
                known->second = other;
        }
        std::vector<std::pair<QString, QString>> entries;
        for (const qxVariantState &each : qAsConst(list))
            entries.push_back({each.variant, each.state});
        ASSERT_EQ(entries, model) << "round " << round;
    }
}

TEST(StateListTest, AnAssignedLongListFollowsItsOwnEntries)
{
    qxStateList list;
    for (unsigned int number = 1; number < 40; ++number)
        list.add(nameOf(number), "On");
    qxStateList copy;
    copy.add("Before", "Off");
    copy = list;
    EXPECT_FALSE(copy.find("Before"));
    copy.find("Name7")->variant = "Seven";
    EXPECT_TRUE(copy.find("Seven"));
    EXPECT_FALSE(copy.find("Name7"));
    EXPECT_TRUE(list.find("Name7"));
}

TEST(UniqueNamesTest, KeepsOrderAndDropsTwinsInShortAndLongLists)
{
    qxUniqueNames names;
    for (unsigned int i = 0; i < 78; ++i)
        names.add(nameOf(1 + i % 39));
    ASSERT_EQ(names.size(), 39u);
    names.remove(nameOf(2));
    names.remove(nameOf(2));
    names.add(nameOf(2));
    EXPECT_EQ(names[1], nameOf(3));
    EXPECT_EQ(names[38], nameOf(2));
    names.clear();
    names.add(nameOf(3));
    EXPECT_EQ(names.list(), QStringList(nameOf(3)));
}
