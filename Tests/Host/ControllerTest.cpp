#include "qxController.h"
#include "qxMessage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

typedef std::vector<std::string> Lines;

Lines heard;

void hearFirst(qxMessage &message)
{
    heard.push_back("first");
    message.set("reply", std::string("from first"));
}

void hearSecond(qxMessage &message)
{
    const std::string *reply = message.get<std::string>("reply");
    heard.push_back(reply ? "second, " + *reply : "second");
}

void leaveInviteAndCallAgain(qxMessage &)
{
    heard.push_back("leaving");
    qxController::subCB("event", &leaveInviteAndCallAgain);
    qxController::subCB("event", &hearFirst);
    qxController::addCB("event", &hearSecond);
    qxController::call("event", 1);
}

class ControllerTest : public testing::Test {
protected:
    ControllerTest() { heard.clear(); }
    ~ControllerTest() override
    {
        for (const auto callback : {&hearFirst, &hearSecond, &leaveInviteAndCallAgain})
            qxController::subCB("event", callback);
    }
};

} // namespace

TEST_F(ControllerTest, CallbacksAndListenersRunInTheOrderOfRegistration)
{
    qxController::addCB("event", &hearFirst);
    const int listener = qxController::addListener([](const char *name, qxMessage *data, int flag) {
        heard.push_back(std::string(name) + (data ? " with data " : " ") + std::to_string(flag));
    });
    qxController::addCB("event", &hearSecond);
    qxController::addCB("event", &hearFirst); // known already: keeps its place, runs once

    qxMessage message;
    qxController::call("event", message, 0);
    EXPECT_EQ(heard, (Lines{"first", "event with data 0", "second, from first"}));

    heard.clear();
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"first", "event 1", "second"})) << "each callback has its own message";

    heard.clear();
    qxController::call("other", 1);
    qxController::removeListener(listener);
    qxController::call("other", 1);
    EXPECT_EQ(heard, (Lines{"other 1"}));
}

TEST_F(ControllerTest, WhoLeavesDuringACallIsNotRunAndWhoComesWaitsForTheNextOne)
{
    qxController::addCB("event", &leaveInviteAndCallAgain);
    qxController::addCB("event", &hearFirst);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"leaving", "second"})) << "heard in the inner call alone";

    const int listener = qxController::addListener(
        [](const char *, qxMessage *, int) { throw std::string("fault"); });
    EXPECT_THROW(qxController::call("event", 1), std::string);
    qxController::removeListener(listener);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"leaving", "second", "second", "second"}));
}

TEST_F(ControllerTest, AListenerMayRemoveItselfAndKeepUsingWhatItHolds)
{
    int listener = 0;
    const std::string word = "a text that is too long to be kept inside of the string object";
    listener = qxController::addListener([&listener, word](const char *, qxMessage *, int) {
        qxController::removeListener(listener);
        for (int i = 0; i < 100; ++i) // makes the list grow under the running listener
            qxController::removeListener(
                qxController::addListener([](const char *, qxMessage *, int) {}));
        heard.push_back(word);
    });

    qxController::call("event", 1);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{word}));
}

TEST(MessageTest, AnEntryKeepsItsPlaceAndIsReplacedOnlyOnDemand)
{
    qxMessage message(0x10000);
    message.set("visible", true);
    message.set("name", std::string("Wheel"));
    message.set("visible", std::string("now a text"), true);
    message.set("name", std::string("Axle"), false);

    ASSERT_EQ(message.entries().size(), 2u);
    EXPECT_EQ(message.entries()[0].first, "visible");
    EXPECT_EQ(*message.get<std::string>("visible"), "now a text");
    EXPECT_EQ(*message.get<std::string>("name"), "Wheel");
    EXPECT_EQ(message.get<bool>("visible"), nullptr) << "another type now";
    EXPECT_EQ(message.get<int>("unknown"), nullptr);
    EXPECT_EQ(message.code(), 0x10000u);
}
