"""The pytest plugin: the fixtures tv, middleware and viewer, each new for each test.

A failed test has the screen's picture, what was spoken and the TV's log in its report, as files in its folder too.
"""

import shlex

import pytest

from . import TV, Middleware, Viewer, tv as _tv

_LINES = 60


def pytest_addoption(parser):
    parser.addoption("--tv-options", default="", metavar="OPTIONS",
                     help='options of veskar-tv for every TV, such as "--window"')


def pytest_configure(config):
    config.addinivalue_line("markers", "tv(*options): the options of veskar-tv for this test's TV")


@pytest.fixture
def tv(request, tmp_path):
    marker = request.node.get_closest_marker("tv")
    options = shlex.split(request.config.getoption("--tv-options")) + list(marker.args if marker else ())
    with TV(tmp_path, *options) as started:
        yield started


@pytest.fixture
def middleware(tv):
    playing = Middleware(tv)
    yield playing
    playing.end()


@pytest.fixture
def viewer(tv):
    return Viewer(tv)


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item):
    report = (yield).get_result()
    television = item.funcargs.get("tv")
    if report.when == "call" and report.failed and television is not None:
        _attach(item, report, television)


def _attach(item, report, television):
    try:
        picture = Viewer(television).shot("failed.png")
    except _tv.TvFailed as failure:
        picture = failure
    log = _tv.read(television.log).splitlines()
    report.sections += [
        ("TV: picture", str(picture)),
        ("TV: spoken", f"{_tv.read(television.voice)}({television.voice})"),
        (f"TV: log, the last of {len(log)} lines", "\n".join(log[-_LINES:] + [f"({television.log})"])),
    ]
    # Of the test, so that they are in its JUnit XML.
    item.user_properties += [("picture", str(picture)), ("log", str(television.log))]
