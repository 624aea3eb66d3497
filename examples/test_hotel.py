"""A set in a hotel's room: when a screen is removed, the hotel's menu comes back."""

MENU = "org.tizen.ep-hotel-factory"


def hotel_set(tv):
    tv.set("com.brelmon/featureconf/product.b2b_option_support", 1)
    tv.set("memory/ephotel/hotelmenu/hotelfactorymode", 1)
    return tv.stand_for(MENU)


def test_hotel_menu_comes_back(tv, middleware, viewer):
    menu = hotel_set(tv)
    welcome = middleware.ask("message", title="Welcome", text="Pay channels go on your bill", button=["OK"])
    viewer.expect("on your bill")
    viewer.press("Return")
    assert welcome.answer().label == "OK"
    menu.expect(f"{MENU} AppControl")
