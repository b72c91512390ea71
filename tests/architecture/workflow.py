#!/usr/bin/env python3
"""Checks the workflows for public forges: that they can be read, and that each script which they run is here.

usage: workflow.py ROOT

Nobody runs them on the machines that the project is written on, so a script that is renamed would show there last.
"""

import os
import pathlib
import re
import sys

FOLDER = ".github/workflows"
# A word that begins a command and leads into the repository.
_SCRIPT = re.compile(r"(?:^|[;&|(]\s*)((?:\./|tools/)[\w./-]+)", re.MULTILINE)


def scripts_in(command):
    return _SCRIPT.findall(command)


def check_workflow(root, name, workflow):
    """How many scripts the workflow runs, and what is wrong with it; `workflow` is the file as it was parsed."""
    jobs = workflow.get("jobs") if isinstance(workflow, dict) else None
    if not isinstance(jobs, dict) or not jobs:
        return 0, [f"{name}: there are no jobs"]
    problems = []
    scripts = 0
    # YAML 1.1 takes the word "on" for true.
    if not (workflow.get("on") or workflow.get(True)):
        problems.append(f"{name}: nothing starts it")
    for job, told in jobs.items():
        place = f"{name}: the job {job}"
        steps = told.get("steps") or []
        if not told.get("runs-on") or not steps:
            problems.append(f"{place} lacks a machine or steps")
        for step in steps:
            if ("run" in step) == ("uses" in step):
                problems.append(f"{place} has a step that does not either run or use something: {step}")
            for script in scripts_in(step.get("run", "")):
                scripts += 1
                path = root / script
                if not path.is_file() or not os.access(path, os.X_OK):
                    problems.append(f"{place} runs {script}, which is no program here")
    return scripts, problems


def main(arguments):
    # Debian's own Python has it; the part that is tested by itself needs it not.
    import yaml
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(arguments[0])
    scripts, problems = 0, []
    for path in sorted((root / FOLDER).glob("*.yml")):
        name = path.relative_to(root).as_posix()
        try:
            workflow = yaml.safe_load(path.read_text(encoding="utf-8"))
        except yaml.YAMLError as error:
            problems.append(f"{name}: {error}")
            continue
        found, wrong = check_workflow(root, name, workflow)
        scripts += found
        problems += wrong
    if scripts == 0:
        problems.append(f"no workflow in {FOLDER} runs a script of the repository")
    print("\n".join(problems) if problems else f"The workflows run {scripts} scripts, which are all here.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
