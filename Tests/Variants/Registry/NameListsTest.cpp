#include "Internal/qxNamedList.h"
#include "Internal/qxStateList.h"
#include "Internal/qxUniqueNames.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace {

struct Named {
    qxName name;
};

/// Few names, so that twins are common; the first one is empty.
QString nameOf(unsigned int number)
{
    return number == 0 ? QString() : QStringLiteral("Name %1").arg(number);
}

} // namespace

// The list is compared with the plainest one that does the same.
TEST(NamedListTest, FindsTheFirstOfANameWhateverHappens)
{
    std::mt19937 random(1);
    std::vector<std::unique_ptr<Named>> objects;
    std::vector<Named *> model;
    qxNamedList<Named> list;
    for (int round = 0; round < 3000; ++round) {
        const std::size_t kind = model.empty() ? 0 : random() % 7;
        const std::size_t index = random() % (model.size() + 1);
        const QString name = nameOf(random() % 12);
        if (kind < 3 || index == model.size()) {
            objects.push_back(std::make_unique<Named>());
            objects.back()->name = name;
            list.append(objects.back().get());
            model.push_back(objects.back().get());
        } else if (kind < 5) {
            Named *const object = model[index];
            if (kind == 3)
                list.take(object);
            else
                EXPECT_EQ(list.takeAt(index), object);
            object->name = "taken";
            model.erase(model.begin() + std::ptrdiff_t(index));
        } else {
            qxName copy = model[index]->name; // It belongs to nobody.
            copy = name;
            model[index]->name = copy;
        }
        ASSERT_EQ(std::vector<Named *>(list.begin(), list.end()), model) << "round " << round;
        for (unsigned int number = 0; number < 12; ++number) {
            const auto first = std::find_if(model.begin(), model.end(), [number](Named *each) {
                return number > 0 && each->name == nameOf(number);
            });
            Named *const found = first == model.end() ? nullptr : *first;
            ASSERT_EQ(list.find(nameOf(number)), found) << "round " << round;
        }
    }
    EXPECT_EQ(list.takeAll(), model);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.find("Name 1"), nullptr);
}

TEST(StateListTest, KeepsOneEntryPerVariantAlsoAfterEntriesWereEdited)
{
    std::mt19937 random(2);
    qxStateList list;
    std::vector<std::pair<QString, QString>> model;
    for (int round = 0; round < 4000; ++round) {
        const QString name = nameOf(random() % 60);
        const QString other = nameOf(random() % 60);
        const auto known = std::find_if(model.begin(), model.end(),
                                        [&](const auto &each) { return each.first == name; });
        if (qxVariantState *found = round % 5 == 0 ? list.find(name) : nullptr) {
            found->variant = other; // Makes twins.
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

TEST(StateListTest, ACopyFollowsItsOwnEntries)
{
    qxStateList list;
    for (unsigned int number = 1; number < 40; ++number)
        list.add(nameOf(number), "On");
    qxStateList copy = list;
    copy.find("Name 7")->variant = "Seven";
    EXPECT_TRUE(copy.find("Seven"));
    EXPECT_FALSE(copy.find("Name 7"));
    EXPECT_TRUE(list.find("Name 7"));
}

TEST(UniqueNamesTest, KeepsOrderAndDropsTwinsInShortAndLongLists)
{
    qxUniqueNames names;
    for (int round = 0; round < 2; ++round) {
        for (unsigned int number = 1; number < 40; ++number)
            names.add(nameOf(number));
    }
    ASSERT_EQ(names.size(), 39u);
    names.remove("Name 2");
    names.remove("Name 2");
    names.add("Name 2");
    EXPECT_EQ(names[1], "Name 3");
    EXPECT_EQ(names[38], "Name 2");
    names.clear();
    names.add("Name 3");
    EXPECT_EQ(names.list(), QStringList("Name 3"));
}
