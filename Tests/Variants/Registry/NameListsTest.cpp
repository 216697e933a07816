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

/// A list beside the plainest one that does the same, changed at random.
class NamedListTest : public testing::Test {
protected:
    std::size_t any(std::size_t count) { return m_random() % count; }
    QString anyName() { return nameOf(unsigned(any(12))); }

    void append()
    {
        m_objects.push_back(std::make_unique<Named>());
        m_objects.back()->name = anyName();
        list.append(m_objects.back().get());
        model.push_back(m_objects.back().get());
    }
    void takeAny()
    {
        const std::size_t index = any(model.size());
        EXPECT_EQ(list.takeAt(index), model[index]);
        model[index]->name = "taken";
        model.erase(model.begin() + std::ptrdiff_t(index));
    }
    void takeNamed()
    {
        Named *const object = model[any(model.size())];
        list.take(object);
        model.erase(std::find(model.begin(), model.end(), object));
    }
    void rename() { model[any(model.size())]->name = anyName(); }
    void change()
    {
        const std::size_t kind = model.empty() ? 0 : any(7);
        if (kind <= 2)
            append();
        else if (kind == 3)
            takeAny();
        else if (kind == 4)
            takeNamed();
        else
            rename();
    }
    Named *first(const QString &name) const
    {
        for (Named *each : model) {
            if (each->name == name && !name.isEmpty())
                return each;
        }
        return nullptr;
    }

    std::vector<Named *> model;
    qxNamedList<Named> list;

private:
    std::vector<std::unique_ptr<Named>> m_objects;
    std::mt19937 m_random{1};
};

} // namespace

TEST_F(NamedListTest, FindsTheFirstOfANameWhateverHappens)
{
    for (int round = 0; round < 3000; ++round) {
        change();
        ASSERT_EQ(std::vector<Named *>(list.begin(), list.end()), model) << "round " << round;
        for (unsigned int number = 0; number < 12; ++number)
            ASSERT_EQ(list.find(nameOf(number)), first(nameOf(number))) << "round " << round;
    }
    EXPECT_EQ(list.takeAll(), model);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.find("Name 1"), nullptr);
}

TEST_F(NamedListTest, ACopyOfANameBelongsToNobody)
{
    Named original;
    original.name = "Wheels";
    list.append(&original);

    qxName copy = original.name;
    copy = "Doors";
    EXPECT_EQ(list.find("Wheels"), &original);
    original.name = copy;
    EXPECT_EQ(list.find("Doors"), &original);
    EXPECT_EQ(list.find("Wheels"), nullptr);
    list.takeAll();
}

// A look-up or a removal that goes through the list would take a minute here.
TEST_F(NamedListTest, AHundredThousandNamesAreLookedUpAndTakenInNoTime)
{
    std::vector<Named> objects(100000);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        objects[i].name = QString::number(i);
        list.append(&objects[i]);
    }
    for (std::size_t i = 0; i < objects.size(); ++i)
        ASSERT_EQ(list.find(QString::number(i)), &objects[i]);
    for (std::size_t i = 0; i < objects.size(); ++i)
        list.take(&objects[i]);
    EXPECT_TRUE(list.empty());
}

TEST(StateListTest, KeepsOneEntryPerVariantAlsoAfterEntriesWereEdited)
{
    std::mt19937 random(2);
    qxStateList list;
    std::vector<std::pair<QString, QString>> model;
    const auto place = [&](const QString &name) {
        return std::find_if(model.begin(), model.end(),
                            [&](const auto &each) { return each.first == name; });
    };
    for (int round = 0; round < 4000; ++round) {
        const QString name = nameOf(random() % 60);
        const QString other = nameOf(random() % 60);
        const auto known = place(name);
        if (qxVariantState *found = round % 5 == 0 ? list.find(name) : nullptr) {
            found->variant = other; // Makes twins.
            known->first = other;
        } else if (random() % 3 == 0) {
            list.remove(name);
            if (known != model.end())
                model.erase(known);
        } else {
            list.add(name, QString::number(round));
            if (known == model.end())
                model.push_back({name, QString::number(round)});
            else
                known->second = QString::number(round);
        }
        ASSERT_EQ(list.size(), model.size()) << "round " << round;
        auto entry = model.begin();
        for (const qxVariantState &each : qAsConst(list)) {
            ASSERT_EQ(each.variant, entry->first) << "round " << round;
            ASSERT_EQ(each.state, (entry++)->second) << "round " << round;
        }
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
