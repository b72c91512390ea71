"""A shell on a terminal of its own, into which a user types."""

import os
import pty
import select
import subprocess
import threading

ALL_MATCHES = "\x18a"
TELL_LINE = "\x18t"

_SETUP = {
    # insert-completions puts everything that Tab would offer into the line.
    "bash": r"""
PS1=
source "$COMPLETION"
bind 'set bell-style none' 'set completion-query-items 0' 'set page-completions off'
bind '"\C-xa": insert-completions'
bind -x '"\C-xt": printf %s "$READLINE_LINE" >"$TOLD"; READLINE_LINE='
printf ready >"$TOLD"
""",
    "zsh": r"""
PS1=
setopt NO_BEEP NO_LIST_BEEP
fpath=(${COMPLETION:h} $fpath)
autoload -Uz compinit; compinit -u -D
zstyle ':completion:all-matches:*' completer _all_matches _complete
zle -C all-matches menu-complete _generic
bindkey '^Xa' all-matches
tell-line() { print -rn -- "$BUFFER" >$TOLD; BUFFER= }
zle -N tell-line
bindkey '^Xt' tell-line
printf ready >$TOLD
""",
}
_COMMAND = {"bash": ["bash", "--norc", "--noprofile", "-i"], "zsh": ["zsh", "-f", "-i"]}


class InteractiveShell:

    def __init__(self, name, completion, folder):
        """`completion` is the file with the program's completion, `folder` the current one of the shell."""
        self.folder = folder
        self.told = folder / ".told"
        os.mkfifo(self.told)
        self.screen, terminal = pty.openpty()
        environment = {"PATH": "/usr/bin:/bin", "HOME": str(folder), "TERM": "dumb", "LC_ALL": "C.UTF-8",
                       "COMPLETION": str(completion), "TOLD": str(self.told), "INPUTRC": "/dev/null"}
        self.process = subprocess.Popen(_COMMAND[name], stdin=terminal, stdout=terminal, stderr=terminal,
                                        cwd=folder, env=environment, start_new_session=True)
        os.close(terminal)
        self.shown = b""
        # What the shell echoes has to be read, or it would wait for that.
        self.reader = threading.Thread(target=self._read_screen, daemon=True)
        self.reader.start()
        setup = folder / ".setup"
        setup.write_text(_SETUP[name], encoding="utf-8")
        self._type(f". ./{setup.name}\r")
        if (answer := self._line()) != "ready":
            raise AssertionError(f"{name} does not start: {answer} {self.shown}")

    def close(self):
        self.process.kill()
        self.process.wait()
        self.reader.join()
        os.close(self.screen)

    def _read_screen(self):
        try:
            while read := os.read(self.screen, 65536):
                self.shown += read
        except OSError:
            pass

    def _type(self, keys):
        os.write(self.screen, keys.encode())

    def _line(self):
        """What the shell writes into the pipe; an error when that takes too long."""
        end = os.open(self.told, os.O_RDONLY | os.O_NONBLOCK)
        try:
            if not select.select([end], [], [], 60)[0]:
                raise AssertionError(f"The shell is silent: {self.shown[-500:]}")
            os.set_blocking(end, True)
            text = b""
            while read := os.read(end, 65536):
                text += read
            return text.decode()
        finally:
            os.close(end)

    def complete(self, line, keys="\t"):
        """The line as it is after the keys."""
        self._type(line + keys + TELL_LINE)
        return self._line()

    def offered(self, line):
        """All words that the shell offers behind what is typed, which must end with a space."""
        return self.complete(line, ALL_MATCHES).removeprefix(line).split()
