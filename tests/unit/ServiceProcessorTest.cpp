#include "ServiceProcessor.h"
#include "IWindowManager.h"
#include "Screen.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StrictMock;
using Byte = unsigned char;

/** Any call that a test does not expect is a failure. */
struct WindowManagerMock : VESKAR_APP::IWindowManager
{
    using T = const Text&;
    using Ts = const Texts&;
    MOCK_METHOD(bool, ShowMmiMessage, (int, Byte, T, T, T, T, Ts, bool), (override));
    MOCK_METHOD(bool, ShowMmiList, (int, Byte, T, T, T, T, bool, Ts, Ts, bool), (override));
    MOCK_METHOD(bool, ShowMmiPinEntry, (int, Byte, T, T, T, Byte, T), (override));
    MOCK_METHOD(bool, ShowProgress, (int, Byte, T, T, T, Byte), (override));
    MOCK_METHOD(bool, ShowLoading, (int, Byte, Text, Ts, int), (override));
    MOCK_METHOD(bool, ShowMessage, (int, Byte, T, T, T, T, Ts, bool), (override));
    MOCK_METHOD(bool, ShowImage, (int, Byte, T, T, T, T, int, int, Ts, bool), (override));
    MOCK_METHOD(bool, ShowList, (int, Byte, T, T, T, Ts, T, bool, Ts, bool), (override));
    MOCK_METHOD(bool, ShowMultipleList, (int, Byte, T, T, T, Ts, T, bool, Ts, bool), (override));
    MOCK_METHOD(bool, ShowPinManager, (int, Byte, T, T, T, Byte, T), (override));
    MOCK_METHOD(bool, ShowMultipleImageList, (int, Byte, T, T, T, Ts, T, bool, Ts, Ts, int, int, bool), (override));
    MOCK_METHOD(bool, ShowTestPopup, (int, Byte, int), (override));
    MOCK_METHOD(bool, Close, (int, Byte), (override));
    MOCK_METHOD(bool, Test, (int), (override));
};

struct ServiceProcessorTest : TvTest
{
    StrictMock<WindowManagerMock> screens;
    VESKAR_APP::ServiceProcessor processor{screens};

    using Values = std::map<std::string, app_control_s::Value>;

    bool Handle(const Values& values)
    {
        tv.Forget();
        app_control_s request{"", values};
        return processor.HandleService(&request);
    }
    void Ask(const char* uiType, Values displayKeys, const char* uiId = "7", const char* sourceId = "254")
    {
        displayKeys.insert({{"signal_type_key", "signal_tvservice"},
                            {"signal_tvservice_key", uiType},
                            {"ui_param_ui_id", uiId},
                            {"ui_param_source_id", sourceId}});
        EXPECT_TRUE(Handle(displayKeys));
    }
    const Values everyKey{{"ui_param_title", "T"},
                          {"ui_param_sub", ""},
                          {"ui_param_bottom", "B"},
                          {"ui_param_txt", "X"},
                          {"ui_param_buttons", Texts{"Cancel", "OK"}},
                          {"ui_param_entries", Texts{"1\tone"}},
                          {"ui_param_format", "LR"},
                          {"ui_param_header", "1"},
                          {"ui_param_noclose", "2"},
                          {"ui_param_image_location", "/i.png"},
                          {"ui_param_image_width", "401"},
                          {"ui_param_image_height", "300"},
                          {"ui_param_multiple_image_locations", Texts{"/1.png", "/2.png"}},
                          {"ui_param_selectable", "1"},
                          {"ui_param_percent", "300"},
                          {"ui_param_pin_length", "260"}};
};

TEST_F(ServiceProcessorTest, EachKindOfScreenReadsItsKeysInOrderAndMakesOneShowCall)
{
    const auto buttons = ElementsAre("Cancel", "OK");
    const auto entries = ElementsAre("1\tone");

    EXPECT_CALL(screens, ShowMessage(7, 254, "T", "", "B", "X", buttons, true));
    Ask("ui_type_message", everyKey);

    EXPECT_CALL(screens, ShowImage(7, 254, "T", "", "B", "/i.png", 401, 300, buttons, true));
    Ask("ui_type_image", everyKey);

    EXPECT_CALL(screens, ShowList(7, 254, "T", "", "B", entries, "LR", true, buttons, false));
    Ask("ui_type_list", everyKey);

    EXPECT_CALL(screens, ShowList(7, 254, "T", "", "B", entries, "LR", true, buttons, true));
    Ask("ui_type_select", everyKey);

    EXPECT_CALL(screens, ShowMultipleList(7, 254, "T", "", "B", entries, "LR", true, buttons, true));
    Ask("ui_type_multiple_list", everyKey);

    EXPECT_CALL(screens, ShowMultipleImageList(7, 254, "T", "", "B", entries, "LR", true, buttons,
                                               ElementsAre("/1.png", "/2.png"), 401, 300, true));
    Ask("ui_type_multiple_image_list", everyKey);

    EXPECT_CALL(screens, ShowProgress(7, 254, "T", "X", "Cancel", 44));
    Ask("ui_type_progress", everyKey);

    EXPECT_CALL(screens, ShowLoading(7, 254, "X", buttons, 300));
    Ask("ui_type_loading", everyKey);

    EXPECT_CALL(screens, ShowPinManager(7, 254, "T", "", "X", 4, "B"));
    Ask("ui_type_pin_entry", everyKey);
    EXPECT_THAT(tv.Log(DLOG_ERROR), IsEmpty());
}

TEST_F(ServiceProcessorTest, AMissingKeyLeavesItsDefaultAndAnErrorLine)
{
    const Texts none;
    EXPECT_CALL(screens, ShowMessage(7, 254, "", "", "", "", none, false));
    Ask("ui_type_message", {});
    EXPECT_CALL(screens, ShowMultipleImageList(7, 254, "", "", "", none, "", false, none, none, 0, 0, false));
    Ask("ui_type_multiple_image_list", {});
    EXPECT_CALL(screens, ShowProgress(7, 254, "", "", "", 0));
    Ask("ui_type_progress", {});

    tv.failing = {"ui_param_title"}; // a key without a value is missing too
    EXPECT_CALL(screens, ShowPinManager(7, 254, "", "", "X", 4, "B"));
    Ask("ui_type_pin_entry", everyKey);
}

TEST_F(ServiceProcessorTest, AScreenNeedsItsRoutingKeysAndAnUnknownKindIsNoError)
{
    Values values{{"signal_type_key", "signal_tvservice"}};
    for (const char* key : {"signal_tvservice_key", "ui_param_ui_id", "ui_param_source_id"})
    {
        EXPECT_TRUE(Handle(values));
        EXPECT_THAT(tv.Log(DLOG_INFO), IsEmpty()) << "complete without " << key;
        values[key] = "7";
    }
    Ask("ui_type_Message", {});
    EXPECT_THAT(tv.Log(DLOG_INFO), ElementsAre("complete"));
}

TEST_F(ServiceProcessorTest, IdsAreDecimalNumbersOfWhichASourceKeepsItsLowEightBits)
{
    EXPECT_CALL(screens, Close(42, 254));
    Ask("ui_type_close", {}, " 42abc", "510");
    EXPECT_CALL(screens, Close(0, 255));
    Ask("ui_type_close", {}, "x", "-1");
    EXPECT_CALL(screens, Close(-3, 0));
    Ask("ui_type_close", {}, "-3", "0x10");
    EXPECT_THAT(tv.Log(DLOG_INFO), ElementsAre("complete"));
}

TEST_F(ServiceProcessorTest, ASignalTypeIsNeededAndASequenceDoesNothing)
{
    EXPECT_FALSE(processor.HandleService(nullptr));
    EXPECT_FALSE(Handle({{"menu_pos_key", "veskar_menu"}}));
    EXPECT_TRUE(Handle({{"signal_type_key", "sequence"}}));
    EXPECT_TRUE(Handle({{"signal_type_key", "SEQUENCE"}}));
    tv.failing = {"signal_type_key"};
    EXPECT_FALSE(Handle({{"signal_type_key", "sequence"}}));
    EXPECT_THAT(tv.deeds, IsEmpty());
}

TEST_F(ServiceProcessorTest, AMenuPositionStopsTheMenuAndReachesTheController)
{
    const auto deedsFor = [this](const char* name)
    {
        EXPECT_TRUE(Handle({{"signal_type_key", "signal_menu_pos"}, {"menu_pos_key", name}}));
        return tv.deeds;
    };
    const std::string stop = "task name:menu |stop";
    EXPECT_THAT(deedsFor("veskar_menu"), ElementsAre(stop, "menu 1"));
    EXPECT_THAT(deedsFor("veskar_info"), ElementsAre(stop, "menu 0"));
    EXPECT_THAT(deedsFor("veskar_add_op"), ElementsAre(stop, "menu 2"));
    EXPECT_THAT(deedsFor("veskar_delete_op"), ElementsAre(stop, "menu 3"));
    EXPECT_THAT(deedsFor("veskar"), ElementsAre(stop));
    tv.hasController = false;
    EXPECT_THAT(deedsFor("veskar_menu"), IsEmpty());

    EXPECT_TRUE(Handle({{"signal_type_key", "signal_menu_pos"}}));
    EXPECT_THAT(tv.deeds, IsEmpty());
}

// The reader of bytes serves no request yet. It is private; an explicit instantiation may name it.
bool ReadBytes(VESKAR_APP::ServiceProcessor& processor, app_control_h request, std::vector<Byte>& bytes);
template <auto reader>
struct Open
{
    friend bool ReadBytes(VESKAR_APP::ServiceProcessor& processor, app_control_h request, std::vector<Byte>& bytes)
    {
        return (processor.*reader)(request, "bytes", bytes);
    }
};
template struct Open<&VESKAR_APP::ServiceProcessor::m_GetDataArray>;

TEST_F(ServiceProcessorTest, BytesAreTheFirstOnesOfAListsTexts)
{
    std::vector<Byte> bytes;
    app_control_s request{"", {{"bytes", Texts{"A", "", "zoo"}}}};
    EXPECT_TRUE(ReadBytes(processor, &request, bytes));
    EXPECT_THAT(bytes, ElementsAre(0x41, 0, 0x7a));
    app_control_s empty;
    EXPECT_FALSE(ReadBytes(processor, &empty, bytes));
}

} // namespace
