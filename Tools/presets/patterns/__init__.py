"""The factory patterns, folder by folder; the one without a folder opens with the plug-in."""

from .welcome import WELCOME

PATTERNS = {"": (WELCOME,)}
