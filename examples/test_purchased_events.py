"""The events that the viewer has bought: columns under a header, and rows that are only read."""

HEADER = ["Event\tDate\tPrice"]
EVENTS = ["Cup final\t3 May\t€ 9.99", "Opera night\t17 May\t€ 14.00", "Film premiere\t21 May\t€ 5.49"]


def test_purchased_events_with_a_header(middleware, viewer):
    events = middleware.ask("list", title="Purchased events", entry=HEADER + EVENTS, format="LCR", header=True,
                            bottom="Total: € 29.48", button=["Close"])
    viewer.expect("Opera night 17 May € 14.00")
    viewer.press("Return")  # on a row: it is for reading only
    assert not events.is_answered()

    viewer.press("Down", "Down", "Down", "Return")
    assert events.answer().label == "Close"


def test_event_to_watch_is_chosen(middleware, viewer):
    events = middleware.ask("select", title="Watch again", entry=HEADER + EVENTS, format="LCR", header=True)
    viewer.expect("Watch again")
    viewer.press("Down", "Return")
    answer = events.answer()
    assert (answer.item, answer.row) == (2, EVENTS[1])  # the header does not count
