"""Tells what the sittings of a tour wrote outside the folder of the program: writes.py TRACES, which `strace -ff` made of it.

A file that is opened for writing, made, renamed or linked there is a finding. What is left out is no trace of a diary:"""
import pathlib, re, sys

KEPT_BY_OTHERS = {
    r"/dev/(null|tty)": "nothing is kept there",
    r"/proc/self/.*|/proc/\d+/.*": "the system's picture of the process",
    r".*/\.cache/fontconfig(/.*)?|/var/cache/fontconfig/.*": "what fonts the machine has, by the fonts' library, where the system's own list is out of date",
    r".*/\.cache/mesa_shader_cache(/.*)?": "programs for the screen's processor, by its driver",
}
CALLS = re.compile(r'(?:open|creat|rename|link|symlink|mkdir|mknod|truncate|bind)\w*\((.*)\) = \d')
MAKES = re.compile(r"O_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)")
SITTING = re.compile(r'execve\(.*"--sitting", "\d+", "([^"]+)", "([^"]+)"\]')

def written(line):
    """The paths that a call wrote to; a relative one behind the folder that strace shows."""
    call = CALLS.match(line)
    if not call or (line.startswith("open") and not MAKES.search(line)): return []
    words, folder, paths = re.findall(r'"((?:[^"\\]|\\.)*)"', call[1]), re.match(r"[\w-]+<([^>]*)>", call[1]), []
    if line.startswith("symlink"): words = words[1:]  # the first is what the link says
    if line.startswith("bind") and "sun_path=@" in line: words = []  # a name, and no file
    for word in words: paths.append(word if word.startswith("/") else f"{folder[1] if folder else '?'}/{word}")
    return paths

def main(traces):
    files = [path.read_text(errors="replace").splitlines() for path in sorted(pathlib.Path(traces).iterdir())]
    sittings = [match.groups() for lines in files for line in lines if (match := SITTING.search(line))]
    others = [lines for lines in files if lines and lines[0].startswith("execve(") and not SITTING.search(lines[0])]
    own = tuple(f"{folder}/" for pair in sittings for folder in pair)
    calls = [f"{path}/" for lines in files if lines not in others for line in lines for path in written(line)]
    alien = {path[:-1] for path in calls if not path.startswith(own)}
    found = {path for path in alien if not any(re.fullmatch(kind, path) for kind in KEPT_BY_OTHERS)}
    for path in sorted(found): print(f"written outside the folder of the program: {path}")
    inside = sum(path.startswith(own) for path in calls)
    print(f"{len(sittings)} sittings traced, {inside} calls inside their folders; {len(found)} findings")
    return bool(found) or not inside

sys.exit(main(sys.argv[1]))
