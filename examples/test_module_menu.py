"""The menu of an access module, three levels deep, and the way back."""


def choose(middleware, viewer, title, rows, *keys):
    menu = middleware.ask("select", title=title, bottom="Back: one level up", entry=rows)
    viewer.expect(title, ui_id=menu.ui_id)
    viewer.press(*keys)
    return menu.answer()


def test_menu_three_levels_deep(middleware, viewer):
    main = ["Subscription", "Messages", "Card status"]
    status = ["Serial number", "Entitlements", "Signal"]
    entitlements = ["Sport\tuntil 31 December", "Cinema\texpired"]

    assert choose(middleware, viewer, "Access module", main, "Down", "Down", "Return").row == "Card status"
    assert choose(middleware, viewer, "Card status", status, "Down", "Return").row == "Entitlements"
    assert choose(middleware, viewer, "Entitlements", entitlements, "Down", "Return").row == "Cinema\texpired"

    # Up again, a level for each Back.
    assert choose(middleware, viewer, "Entitlements", entitlements, "Back").result == "back"
    assert choose(middleware, viewer, "Card status", status, "Back").result == "back"
    assert choose(middleware, viewer, "Access module", main, "Exit").result == "closed"
    viewer.wait("gone")
