"""Automates a TV on a desk: a television, the middleware that asks for screens, and the viewer who answers them.

    with TV(folder) as tv:
        card = Middleware(tv).ask("message", title="Card", button=["Yes", "No"])
        viewer = Viewer(tv)
        viewer.expect("Card")
        viewer.press("Right", "Return")
        assert card.answer().label == "No"

With pytest they are fixtures, which come with the plugin veskar_tv.plugin. Every wait has an end: what does not come in
time raises NotSeen.
"""

from .middleware import Answer, Middleware, NoAnswer, Refused
from .tv import TV, NotSeen, TvFailed
from .viewer import Viewer

__all__ = ["TV", "Middleware", "Viewer", "Answer", "NotSeen", "NoAnswer", "Refused", "TvFailed"]
