"""The factory patterns, folder by folder; the one without a folder opens with the plug-in."""

from .basics import BASICS
from .rhythmic import RHYTHMIC
from .welcome import WELCOME

PATTERNS = {"": (WELCOME,), "Basics": BASICS, "Rhythmic": RHYTHMIC}
