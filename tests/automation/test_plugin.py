"""What the pytest plugin does for a test that fails."""

import re

FAILING = """
def test_card(middleware, viewer, tv):
    tv.set("db/menu/system/accessibility/voiceguide", 1)
    middleware.ask("message", title="Card", button=["OK"])
    viewer.hear("^OK$")
    viewer.expect("Another title", timeout=0.1)
"""


def test_failure_comes_with_picture_words_and_log(pytester):
    pytester.makepyfile(FAILING)
    result = pytester.runpytest_subprocess("-p", "veskar_tv.plugin", "--junitxml=junit.xml")
    result.assert_outcomes(failed=1)
    report = result.stdout.str()
    assert 'NotSeen: no screen that says this within 0.1 s; what was said last is "Card, , ' in report
    picture = re.search(r"- TV: picture -*\n(.*)", report)[1]
    with open(picture, "rb") as file:
        assert file.read(4) == b"\x89PNG"
    assert re.search(r"- TV: spoken -*\nCard, .*\nOK\n", report)
    assert "Service complete!" in report[report.index("TV: log"):]
    assert f'name="picture" value="{picture}"' in (pytester.path / "junit.xml").read_text()


def test_misspelt_request_and_a_tv_that_does_not_start_say_why(pytester):
    pytester.makepyfile("""
        def test_word(middleware):
            middleware.ask("mesage").answer()

        def test_option(middleware):
            middleware.tell("message", titel="Card")
    """)
    result = pytester.runpytest_subprocess("-p", "veskar_tv.plugin")
    result.stdout.fnmatch_lines(['*Refused: *"mesage" (did you mean "message"?)*', '*did you mean "--title"?*'])
    result = pytester.runpytest_subprocess("-p", "veskar_tv.plugin", "--tv-options=--size=big")
    result.assert_outcomes(errors=2)
    result.stdout.fnmatch_lines(['*TvFailed: *"big" is no size*'])
