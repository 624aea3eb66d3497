/** The application's side of its answers: the controller library on a real bus. */
#include "Tv.h"

#include <IVesKarController.h>

#include <Ecore.h>
#include <Eldbus.h>

namespace
{

/** What the application framework does around the application: it opens the connection first and closes it last. */
class Framework
{
public:
    Framework()
    {
        // Before the bus library, whose own initialisation would let the loop's modules use it half done.
        ecore_init();
        eldbus_init();
        m_connection = eldbus_connection_get(ELDBUS_CONNECTION_TYPE_SESSION);
    }
    ~Framework()
    {
        if (m_connection != nullptr)
        {
            eldbus_connection_unref(m_connection);
        }
        eldbus_shutdown();
        ecore_shutdown();
    }

private:
    Eldbus_Connection* m_connection;
};

} // namespace

class ControllerTest : public TvTest
{
protected:
    bool IsLoggedSoon(const std::string& text)
    {
        return WaitUntil([&] { return CountInLog(text) == 1; });
    }
};

TEST_F(ControllerTest, MessagesSentJustBeforeTheEndArriveWhole)
{
    {
        const Framework framework;
        auto* controller = VESKAR_API::IVesKarController::Instance();
        ASSERT_NE(controller, nullptr);
        EXPECT_TRUE(controller->SendResponse(-7, 254, 3, 1, 255, "Ünï\n"));
        EXPECT_TRUE(controller->OpenMenuPosition(2));
    }
    EXPECT_TRUE(IsLoggedSoon("SendResponse ui -7, source 254, kind 3, button 1, item 255, data 6 bytes"));
    EXPECT_TRUE(IsLoggedSoon("OpenMenuPosition 2"));
}

TEST_F(ControllerTest, TextThatTheBusWouldNotCarryIsDroppedAndTheConnectionStays)
{
    const Framework framework;
    auto* controller = VESKAR_API::IVesKarController::Instance();
    ASSERT_NE(controller, nullptr);
    EXPECT_FALSE(controller->SendResponse(8, 255, 0, 0, 0, "\xff\xfe"));
    EXPECT_FALSE(controller->SendResponse(8, 255, 0, 0, 0, std::string("1\0002", 3)));
    EXPECT_TRUE(controller->SendResponse(9, 255, 0, 0, 0, "next"));
    EXPECT_TRUE(IsLoggedSoon("SendResponse ui 9,"));
    EXPECT_EQ(CountInLog("SendResponse ui 8,"), 0);
}
