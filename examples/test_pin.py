"""A PIN is asked for again, because the first one was wrong."""


def test_pin_asked_twice(middleware, viewer):
    first = middleware.ask("pin", title="Parental PIN", text="Film from 16")
    viewer.expect("Parental PIN")
    viewer.press("1", "2", "3", "4")
    assert first.answer().data == "1234"

    second = middleware.ask("pin", title="Wrong PIN, once more")
    viewer.expect("Wrong PIN")
    viewer.press("4", "7", "1", "1")
    assert second.answer().data == "4711"
    viewer.wait("gone")
