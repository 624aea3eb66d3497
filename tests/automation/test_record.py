"""What is done in a TV while it is recorded becomes a scenario, which runs."""

DONE = """
veskar-mw --ui-id 7 message --title 'Card (1)' --text 'Renew now?' --button Yes --button No &
veskar-remote wait --shown --ui-id 7
veskar-remote press Right Return
wait $!
veskar-mw --ui-id 9 select --header --entry Name --entry Arte --entry BBC &
veskar-remote wait --shown --ui-id 9
veskar-remote press Down Up Back
veskar-mw raw signal_type_key=signal_tvservice signal_tvservice_key=ui_type_message ui_param_ui_id=10 \\
    ui_param_source_id=255 odd=1 &
veskar-remote wait --shown --ui-id 10
veskar-mw --ui-id 10 close
veskar-mw menu veskar_info
veskar-mw --ui-id 11 list --entry "$(printf '%65s' | tr ' ' '\\t')" || [ $? = 64 ]
wait
"""
SCENARIO = '''"""Recorded by ./tv record."""

import pytest
from veskar_tv import NoAnswer, Refused


def test_card(middleware, viewer):
    message = middleware.ask("message", ui_id=7, title="Card (1)", text="Renew now?", button=["Yes", "No"])
    viewer.expect("Card \\\\(1\\\\)", ui_id=7)
    viewer.press("Right", "Return")
    assert message.answer().label == "No"

    select = middleware.ask("select", ui_id=9, entry=["Name", "Arte", "BBC"], header=True)
    viewer.wait("shown", ui_id=9)
    viewer.press("Down", "Up", "Back")
    assert select.answer().result == "back"

    message_2 = middleware.ask("raw", "odd=1", "signal_tvservice_key=ui_type_message",
                               "signal_type_key=signal_tvservice", "ui_param_source_id=255", "ui_param_ui_id=10")
    viewer.wait("shown", ui_id=10)
    middleware.close(10)
    assert message_2.answer().result == "closed"
    assert middleware.menu("veskar_info") == [{"task": "name:menu ", "action": "stop"}, {"menuPosition": 0}]

    list_ = middleware.ask("list", ui_id=11,
                           entry=["TABS"])
    with pytest.raises((NoAnswer, Refused)):
        list_.answer()
'''.replace("TABS", 65 * "\\t")


def test_recorded_scenario_is_readable_and_runs(tv, pytester):
    file = pytester.path / "test_card.py"
    done = tv.run("/usr/bin/python3", "-m", "veskar_tv.record", file, "bash", "-euc", DONE)
    assert done.returncode == 0, done.stderr
    assert file.read_text() == SCENARIO
    pytester.runpytest_subprocess("-p", "veskar_tv.plugin", file).assert_outcomes(passed=1)
    file.write_text(SCENARIO.replace('label == "No"', 'label == "Yes"'))
    pytester.runpytest_subprocess("-p", "veskar_tv.plugin", file).assert_outcomes(failed=1)
