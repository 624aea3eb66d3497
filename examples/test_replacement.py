"""A request that comes while another one's screen is shown takes its place."""


def test_request_replaces_another(middleware, viewer):
    advert = middleware.ask("message", title="This month", text="Cinema at half the price", button=["More"])
    viewer.expect("half the price")

    warning = middleware.ask("message", title="Card", text="Please insert the card", button=["OK"])
    viewer.expect("insert the card", ui_id=warning.ui_id)
    assert advert.answer().result == "closed"

    viewer.press("Return")
    assert warning.answer().label == "OK"
    viewer.wait("gone")


def test_progress_is_updated_in_its_place(middleware, viewer):
    update = middleware.ask("progress", ui_id=7, title="Update", text="Loading", percent=10, button=["Stop"])
    viewer.expect("Loading", ui_id=7)
    middleware.tell("progress", ui_id=7, title="Update", text="Checking", percent=60, button=["Stop"])
    assert not update.is_answered()
    viewer.press("Return")
    assert update.answer().label == "Stop"
