"""A question in Arabic: everything runs from right to left, the second button is at the left."""

QUESTION = "هل تريد تجديد الاشتراك؟"
YES, NO = "نعم", "لا"


def test_answer_in_arabic(tv, middleware, viewer):
    tv.set("db/menu_widget/orientation", 1)
    renewal = middleware.ask("message", title="البطاقة", text=QUESTION, button=[YES, NO])
    viewer.expect(QUESTION)
    viewer.press("Left", "Return")
    assert renewal.answer().label == NO
