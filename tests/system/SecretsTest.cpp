// A PIN is in no core dump, and in none of the TV's own programs once it has been answered.

#include "Tv.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <regex>
#include <set>

#include <sys/resource.h>

using testing::Contains, testing::IsEmpty;

class Secrets : public TvTest
{
protected:
    /** The programs of ours in this TV that see digits; the folder of each in /proc. */
    static std::map<std::string, std::string> Programs()
    {
        const std::set<std::string> known{"veskar-app", "veskar-services", "weston"};
        std::map<std::string, std::string> programs;
        for (const auto& entry : std::filesystem::directory_iterator("/proc"))
        {
            const std::string name = FirstLine(entry.path() / "comm");
            const std::string folder = "VESKAR_TV_DIR=" + Environment("VESKAR_TV_DIR") + '\0';
            if (known.count(name) > 0 && FirstLine(entry.path() / "environ").find(folder) != std::string::npos)
            {
                programs[name] = entry.path();
            }
        }
        return programs;
    }

    /** The program of each place in writable memory, or in what of it a core dump has, where the text is. */
    static Words Find(const std::string& text, bool inDumps = false)
    {
        const std::regex range("([0-9a-f]+)-([0-9a-f]+) rw.*");
        Words found;
        for (const auto& [name, folder] : Programs())
        {
            std::ifstream maps(folder + "/smaps");
            std::ifstream memory(folder + "/mem", std::ios::binary);
            std::string block;
            for (std::string line; std::getline(maps, line);)
            {
                std::smatch ends;
                if (std::regex_match(line, ends, range))
                {
                    const std::streamoff begin = std::stol(ends[1], nullptr, 16);
                    block.resize(std::stol(ends[2], nullptr, 16) - begin);
                    memory.seekg(begin).read(block.data(), static_cast<std::streamsize>(block.size()));
                }
                if (line.rfind("VmFlags:", 0) == 0)
                {
                    const bool isDumped = line.find(" dd ") == std::string::npos;
                    for (auto at = block.find(text); at != std::string::npos && (isDumped || !inDumps);
                         at = block.find(text, at + 1))
                    {
                        found.push_back(name);
                    }
                    block.clear();
                }
            }
        }
        return found;
    }

    /** Four digits, the first three of which no program has yet. */
    static std::string NewPin()
    {
        std::random_device random;
        std::string pin;
        do
        {
            pin = std::to_string(1000 + random() % 9000);
        } while (!Find(pin.substr(0, 3)).empty());
        return pin;
    }

private:
    static std::string FirstLine(const std::filesystem::path& path)
    {
        std::ifstream file(path);
        std::string line;
        std::getline(file, line);
        return line;
    }
};

TEST_F(Secrets, APinIsInNoCoreDumpAndIsForgottenWithItsScreen)
{
    Process request = Send({"--ui-id", "7", "pin"});
    WaitForScreen(7);
    if (!std::ifstream(Programs()["veskar-app"] + "/mem"))
    {
        GTEST_SKIP() << "this system lets nobody read another process's memory";
    }
    std::string pin = NewPin();
    const auto isDumped = [&pin]
    {
        Press({pin.substr(0, 1), pin.substr(1, 1), pin.substr(2, 1)});
        EXPECT_THAT(Find(pin.substr(0, 3)), Contains("veskar-app")) << "the search finds nothing";
        return !Find(pin.substr(0, 3), true).empty();
    };
    // The same digits may be there by chance, but not twice.
    if (isDumped())
    {
        Press(Words(3, "BackSpace"));
        pin = NewPin();
        EXPECT_FALSE(isDumped()) << pin;
    }
    for (const auto& [name, folder] : Programs())
    {
        rlimit limit{};
        prlimit(std::stoi(folder.substr(sizeof "/proc")), RLIMIT_CORE, nullptr, &limit);
        EXPECT_EQ(limit.rlim_cur, 1) << name;
    }
    Press({pin.substr(3)});
    ExpectAnswer(request, Answer(7, 255, 0, 0, 0, pin));
    RunCommand({"veskar-remote", "wait", "--gone"});
    // The toolkit's bus library may keep one copy.
    EXPECT_THAT(Find(pin + '\0'), testing::AnyOf(IsEmpty(), testing::ElementsAre("veskar-app")));
}
