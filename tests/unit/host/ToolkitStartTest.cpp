/** What a program of the TV does before it starts the toolkit. */
#include <appfw/Toolkit.h>

#include <thread>

#include <Eina.h>

#include <gtest/gtest.h>

TEST(ToolkitStart, TheToolkitsLogIsLockedAgainstItsThreads)
{
    veskar::PrepareToolkit();
    eina_log_domain_registered_level_set(EINA_LOG_DOMAIN_GLOBAL, EINA_LOG_LEVEL_ERR);
    testing::internal::CaptureStderr();
    std::thread([] { EINA_LOG_ERR("from a thread"); }).join();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("[T:"), std::string::npos) << "it tells no thread";
}
