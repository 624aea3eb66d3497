"""The module's software is updated. Whatever does the work writes how far it is, a line each time."""


def test_update_with_progress_to_100_percent(middleware, viewer):
    update = middleware.ask("progress", title="Module update", text="Loading", percent_from="-")
    viewer.wait("shown", ui_id=update.ui_id)
    viewer.wait("still")
    screen = viewer.shot("0.png")
    for percent in (20, 40, 60, 80, 100):
        update.write(percent)
        screen = viewer.changed(screen, f"{percent}.png")
    assert not update.is_answered()

    update.end_input()
    assert update.answer().result == "closed"
    viewer.wait("gone")


def test_update_is_stopped(middleware, viewer):
    update = middleware.ask("progress", title="Module update", text="Loading", button=["Stop"], percent_from="-")
    update.write("# 5 min left")
    viewer.expect("Module update")
    viewer.press("Return")
    assert update.answer().label == "Stop"
