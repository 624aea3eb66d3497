"""An entitlement has expired: the message stays until a button is pressed, whatever else the viewer presses."""

EXPIRED = {"title": "Cinema", "text": "Your subscription ended on 31 October.", "button": ["Renew", "Later"]}


def test_viewer_renews(middleware, viewer):
    message = middleware.ask("message", source_id=254, no_close=True, **EXPIRED)
    viewer.expect("ended on 31 October")
    viewer.press("Back", "Exit")
    assert not message.is_answered()

    viewer.press("Return")
    assert message.answer().label == "Renew"


def test_message_is_withdrawn_when_the_entitlement_comes(middleware, viewer):
    message = middleware.ask("message", **EXPIRED)
    viewer.wait("shown", ui_id=message.ui_id)
    middleware.close(message.ui_id)
    assert message.answer().result == "closed"
    viewer.wait("gone")
