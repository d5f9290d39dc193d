"""How the tests in Python run programs and say what does not hold."""
import subprocess
import sys

failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)
        print("FAILED", what, flush=True)


def run(*command, **options):
    """What a command prints; one that fails ends the test."""
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode:
        sys.exit(f"{' '.join(map(str, command))}\n{done.stdout}")
    return done.stdout


def refused(status, message, *command):
    """A command must end with a status and a sentence."""
    done = subprocess.run(command, capture_output=True, text=True)
    expect(done.returncode == status and message in done.stderr and "Traceback" not in done.stderr, done)


def finish():
    print(f"{len(failures)} failures")
    sys.exit(bool(failures))
