"""Makes the fixtures known; in a folder of your own, `pytest -p veskar_tv.plugin` does the same."""

pytest_plugins = ["veskar_tv.plugin"]
