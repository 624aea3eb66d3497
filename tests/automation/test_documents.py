"""What docs/automation.md and the README show runs as it is written there: Python as tests, commands inside a TV."""

import pathlib
import re

import pytest

ROOT = pathlib.Path(__file__).parents[2]


def blocks(language, page="docs/automation.md"):
    page = (ROOT / page).read_text()
    found = re.findall(rf"^```{language}\n(.*?)^```", page, re.MULTILINE | re.DOTALL)
    assert found
    return [pytest.param(block, id=block.strip().splitlines()[-1][:40]) for block in found]


@pytest.mark.parametrize("program", blocks("python"))
def test_python(pytester, program):
    file = pytester.makepyfile(program)
    if "def test" in program:
        pytester.runpytest_subprocess("-p", "veskar_tv.plugin", file).assert_outcomes(passed=1)
    else:
        assert pytester.runpython(file).ret == 0


@pytest.mark.parametrize("commands", blocks("sh"))
def test_shell(tv, commands):
    done = tv.run("bash", "-euc", "unset PYTHONPATH\n" + commands, cwd=ROOT, timeout=60)
    assert done.returncode == 0, done.stdout + done.stderr


def test_request_of_the_readme_is_answered_as_it_says(tv):
    session = next(block.values[0] for block in blocks("sh", "README.md") if "veskar-mw" in block.values[0])
    answer, = blocks("json", "README.md")
    shell, *commands = session.splitlines()
    assert shell == "./tv shell"
    assert tv.run("bash", "-euc", "\n".join([*commands, "wait"]), timeout=60).stdout == answer.values[0]
