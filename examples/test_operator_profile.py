"""An operator's profile is added in the settings menu, and deleted there."""

PROFILE = "Harbour Cable"


def test_profile_is_added(middleware, viewer):
    assert middleware.menu("veskar_add_op")[-1] == {"menuPosition": 2}

    question = middleware.ask("message", title="New operator profile", text=f"Add the channels of {PROFILE}?",
                              button=["Add", "Cancel"])
    viewer.expect(f"channels of {PROFILE}")
    viewer.press("Return")
    assert question.answer().label == "Add"

    middleware.ask("message", title="New operator profile", text="120 channels were added", button=["OK"])
    viewer.expect("120 channels")
    viewer.press("Return")
    viewer.wait("gone")


def test_profile_is_deleted(middleware, viewer):
    assert middleware.menu("veskar_delete_op")[-1] == {"menuPosition": 3}

    # This title moves the screen to a panel at the right, so that the channels stay in sight.
    profiles = middleware.ask("multi-list", title="Delete Kavro Operator Profile", entry=["Northern Dish", PROFILE],
                              button=["Delete"])
    viewer.expect(PROFILE)
    viewer.press("Down", "Return")  # marks the second row
    viewer.press("Down", "Return")  # presses the button
    assert profiles.answer().data == "2"
