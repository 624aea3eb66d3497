"""What veskar-mw prints is what its schema says."""

import json
import pathlib

import jsonschema

ROOT = pathlib.Path(__file__).parents[2]
SCHEMA = jsonschema.Draft202012Validator(json.loads((ROOT / "host/tools/veskar-mw/answer.schema.json").read_text()))
REQUESTS = [
    ("message --button=OK", "Return"), ("image --button=OK", "Back"), ("list --entry=A --button=OK", "Exit"),
    ("select --entry=A", "Return"), ("multi-list --entry=A --button=OK", "Return Down Return"),
    ("image-list --entry=A --selectable", "Return"), ("pin", "1 2 3 4"), ("progress --button=OK", "Return"),
    ("loading --button=OK", "Return"),
]


def test_lines_are_as_the_schema_says(tv, viewer):
    lines = tv.run("veskar-mw", "menu", "veskar_info").stdout.splitlines()
    for request, keys in REQUESTS:
        asked = tv.start("veskar-mw", *request.split())
        viewer.press(*keys.split())
        lines.append(asked.expect("^{.*}$"))
        viewer.wait("gone")
    for line in lines:
        SCHEMA.validate(json.loads(line))
    assert {json.loads(line).get("result") for line in lines} == {None, "answered", "back", "closed"}


def test_schema_refuses_what_no_answer_is():
    answer = {"uiId": 1, "sourceId": 255, "kind": 0, "result": "answered", "button": 1, "item": 0, "data": ""}
    assert SCHEMA.is_valid(answer)
    for wrong in ({"kind": 2}, {"button": 256}, {"data": 1}, {"labels": "OK"}):
        assert not SCHEMA.is_valid(answer | wrong)
