pytest_plugins = ["pytester", "veskar_tv.plugin"]
