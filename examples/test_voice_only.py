"""A viewer who does not see the screen finds the way by what the voice guide says."""


def test_channel_is_chosen_by_ear(tv, middleware, viewer):
    tv.set("db/menu/system/accessibility/voiceguide", 1)
    channels = middleware.ask("select", title="Free weekend", format="LR", entry=["News\t1", "Sport\t7", "Cinema\t12"])
    viewer.hear("Free weekend.*News 1, Sport 7, Cinema 12")
    viewer.hear("^News, 1, 1 of 3$")

    viewer.press("Down")
    viewer.hear("^Sport, 7, 2 of 3$")
    viewer.press("Return")
    assert channels.answer().row == "Sport\t7"
    assert not any("Cinema, 12" in sentence for sentence in viewer.heard())
