"""The shared library, its functions with their types, and what becomes of their status."""

import ctypes
import os
import pathlib
import sysconfig
from typing import Any

from ferrowind_business_days._failures import Error, failure_of

_NAME = "libferrowind_business_days.so.1"
_VARIABLE = "FERROWIND_BUSINESS_DAYS_LIBRARY"


class Year(ctypes.Structure):
    """ferrowind_bd_year"""
    _fields_ = [("currency", ctypes.c_char_p), ("days", ctypes.c_char_p), ("year", ctypes.c_int32)]


class ChangesRead(ctypes.Structure):
    """ferrowind_bd_changes"""
    _fields_ = [("size", ctypes.c_size_t), ("added", ctypes.c_char_p), ("changed", ctypes.c_char_p),
                ("removed", ctypes.c_char_p), ("has_other_conventions", ctypes.c_int32)]


_HANDLE = ctypes.c_void_p
_TEXT = ctypes.c_char_p
_NUMBER = ctypes.c_int32
_NUMBER_ANSWER = ctypes.POINTER(ctypes.c_int32)
_HANDLE_ANSWER = ctypes.POINTER(ctypes.c_void_p)
_SIZE = ctypes.c_size_t

_QUESTIONS = {
    "open": (_TEXT, _HANDLE_ANSWER),
    "make": (ctypes.POINTER(Year), _SIZE, _SIZE, _TEXT, _HANDLE_ANSWER),
    "reload": (_HANDLE, ctypes.POINTER(ChangesRead)),
    "currencies": (_HANDLE, ctypes.POINTER(_TEXT)),
    "calendar_of": (_HANDLE, _TEXT, _HANDLE_ANSWER),
    "state": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "is_business_day": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "next": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "previous": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "adjust": (_HANDLE, _NUMBER, _NUMBER, _NUMBER_ANSWER),
    "convention_named": (_TEXT, _NUMBER_ANSWER),
    "add": (_HANDLE, _NUMBER, _NUMBER, _NUMBER_ANSWER),
    "between": (_HANDLE, _NUMBER, _NUMBER, _NUMBER_ANSWER),
    "month_end": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "closed_days": (_HANDLE, _NUMBER, _NUMBER, _NUMBER_ANSWER, _SIZE, ctypes.POINTER(_SIZE)),
    "horizon": (_HANDLE, _NUMBER_ANSWER, _NUMBER_ANSWER),
    "is_prepared": (_HANDLE, _NUMBER, _NUMBER_ANSWER),
    "pair_of": (_HANDLE, _TEXT, _HANDLE_ANSWER),
    "days_to_spot": (_HANDLE, _NUMBER_ANSWER),
    "spot_date": (_HANDLE, _NUMBER, _NUMBER, _NUMBER_ANSWER),
    "value_date": (_HANDLE, _NUMBER, _TEXT, _NUMBER, _NUMBER_ANSWER),
}


def _places() -> list[str]:
    """Where the library may be: where the environment says, beside this file, where the module's installation has it, where the
    system looks."""
    told = os.environ.get(_VARIABLE)
    if told:
        return [told]
    places = []
    module = pathlib.Path(__file__).resolve().parent
    folders = [module]
    # PREFIX/lib/python3/dist-packages/ferrowind_business_days
    if len(module.parents) > 2:
        libraries = module.parents[2]
        folders += [libraries / (sysconfig.get_config_var("MULTIARCH") or ""), libraries]
    for folder in folders:
        if (folder / _NAME).is_file():
            places.append(str(folder / _NAME))
    return [*places, _NAME]


def _load() -> ctypes.CDLL:
    failures = []
    for place in _places():
        try:
            library = ctypes.CDLL(place)
        except OSError as error:
            failures.append(str(error))
            continue
        for name, types in _QUESTIONS.items():
            function = getattr(library, "ferrowind_bd_" + name)
            function.argtypes = types
            function.restype = ctypes.c_int32
        for kind in ("set", "calendar", "pair"):
            function = getattr(library, "ferrowind_bd_release_" + kind)
            function.argtypes = [_HANDLE]
            function.restype = None
        for name in ("version", "message"):
            function = getattr(library, "ferrowind_bd_" + name)
            function.argtypes = []
            function.restype = _TEXT
        return library
    raise ImportError(f"{'; '.join(failures)} (the variable {_VARIABLE} may name the library)")


_LIBRARY = _load()


def version() -> str:
    """The version of the shared library."""
    return str(_LIBRARY.ferrowind_bd_version().decode())


def call(function: str, *arguments: Any) -> None:
    """Calls ferrowind_bd_`function`. Its failure is an exception."""
    status = getattr(_LIBRARY, "ferrowind_bd_" + function)(*arguments)
    if status != 0:
        raise failure_of(status, _LIBRARY.ferrowind_bd_message().decode(errors="replace"))


def number(function: str, *arguments: Any) -> int:
    """The number that ferrowind_bd_`function` answers behind these arguments."""
    answer = ctypes.c_int32()
    call(function, *arguments, ctypes.byref(answer))
    return answer.value


def text(value: str) -> bytes:
    """A text as the library takes it."""
    encoded = value.encode()
    if b"\0" in encoded:
        raise ValueError("a text has a NUL in it")
    return encoded


class Handle:
    """Something that the library has made, given back when it is closed or nobody needs it any more."""

    def __init__(self, kind: str, function: str, *arguments: Any) -> None:
        self._release = getattr(_LIBRARY, "ferrowind_bd_release_" + kind)
        self._pointer = ctypes.c_void_p()
        call(function, *arguments, ctypes.byref(self._pointer))

    @property
    def pointer(self) -> ctypes.c_void_p:
        """What functions are to be given; Error when it is closed."""
        if not self._pointer:
            raise Error("it is closed")
        return self._pointer

    def close(self) -> None:
        """Gives it back; a second time does nothing. No other thread may be asking it."""
        pointer, self._pointer = getattr(self, "_pointer", None), ctypes.c_void_p()
        if pointer:
            self._release(pointer)

    def __del__(self) -> None:
        self.close()
