"""Makes the fixtures known; in a folder of your own, `pytest -p veskar_tv.plugin` does the same."""

import pathlib
import sys

# The sources' own module, also in the processes of pytest -n; an installed one is found without this.
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "python"))

pytest_plugins = ["veskar_tv.plugin"]
