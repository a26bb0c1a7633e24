"""The factory patterns, folder by folder; the one without a folder opens with the plug-in."""

from .ambient import AMBIENT
from .basics import BASICS
from .chance import CHANCE
from .melodic import MELODIC
from .polymeter import POLYMETER
from .rhythmic import RHYTHMIC
from .welcome import WELCOME

PATTERNS = {"": (WELCOME,), "Basics": BASICS, "Rhythmic": RHYTHMIC, "Melodic": MELODIC, "Ambient": AMBIENT,
            "Polymeter": POLYMETER, "Chance": CHANCE}
