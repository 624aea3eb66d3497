/**
 * The application as the viewer sees it: in the TV's own theme, with what the desk adds to its toolkit, picture by
 * picture.
 */
#pragma once

#include "Screen.h"
#include "WindowManager.h"

#include <vector>

using Row = std::vector<unsigned>;
using Frame = std::vector<Row>;

struct ShownTest : TvTest
{
    ShownTest();
    ~ShownTest() override;

    /** What the window does when a screen has shown it. */
    void TakeKeyboard();

    /**
     * A screen of every kind, with texts of all lengths. Each is watched until nothing moves any more; after that
     * `look` is called.
     */
    void ShowEveryKind(const std::function<void()>& look);

    /** Collects the frames from now on until nothing moves any more. */
    void Watch();
    void WatchWithKeyboard();

    void Key(const std::string& key);
    void Keys(const Texts& keys);

    static constexpr int WIDTH = 960;
    static constexpr int HEIGHT = 540;

    std::unique_ptr<VESKAR_APP::WindowManager> manager;
    Evas* canvas;
    Frame last;
    std::vector<Frame> frames; // each differs from the one before
    std::vector<double> times;
    const Texts images; // three files of one colour each

private:
    static Eina_Bool s_Draw(void* data);
    static Eina_Bool s_IsStill(void* data);

    Ecore_Idle_Enterer* m_drawing;
    int m_still = 0; // calls without a new frame
};
