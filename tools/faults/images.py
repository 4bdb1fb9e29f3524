"""scripts/faults images: cuts the power at the moments when something has been shown as done, on real file systems.

The diary lies on a file system in an image file, behind a loop device. What the file system has handed to its disk, the
loop driver has written into the image; what it still keeps back in the kernel's memory is in no image. A copy of the
image is therefore what a disk holds whose power is cut in that moment: nobody asks the file system to write anything
first, and while the copy is taken the program stands still. The file systems are mounted so that they write of their own
accord after minutes and not after seconds: what is in the copy is there because the program had it brought there. The
disk keeps all that it has taken; one that forgets what it was not told to flush is not played.

Behind two seconds of rest the log is asked, too: the real program is started on the copy, and must bring back what was typed
and the password that was given.
"""
import contextlib, os, pathlib, shutil, subprocess, tempfile

from diary import (ADD_PICTURE, BEGIN, CLOSE, DATA, DRAG, HOME, LEAVE, NEW_JOURNAL, OPTIONS, REST, ROOT, contents, furnish,
                   next_start, opened, play, read_all, typed, unlocked)

# How it is made, its size, how it is mounted, and what looks it over afterwards.
FILE_SYSTEMS = {
    "ext4": ("mkfs.ext4 -q", "64M", "commit=300", "e2fsck -fn"),
    "xfs": ("mkfs.xfs -q", "320M", "nouuid", "xfs_repair -n"),
    "btrfs": ("mkfs.btrfs -q", "128M", "commit=300", "btrfs check"),
}
CUT = "cd {cuts}; cp --sparse=always {image} $1; mkdir $1.shown; cp {folder}/*.tq? {folder}/*.ini {folder}/*.bin $1.shown\n"


def cut(moment, words, control):
    """Steps that wait for the control, and then cut. By then the journals hold these words."""
    return [f"see {control}", f"run env -u LD_PRELOAD sh $HOME/cut {moment}:{words} 2>/dev/null"]

def cut_at_rest(moment, words, back):
    """The same behind two seconds; the next start must bring this password and these words back."""
    return REST + cut(moment, f"{words}:{back}", "txtM")

FIRST = (BEGIN + opened(0) + typed("w1") + cut_at_rest("a-page-typed", "", "Rosebud7+w1") + ["click btnNewPage"] + cut("a-new-page", "w1", "txtM") + typed("w2") + ADD_PICTURE
         + cut("a-picture-added", "w1", "txtM") + DRAG + ["click btnBack"] + cut("a-page-turned", "w1+w2", "txtM")
         + ["click btnNext"] + CLOSE + cut("a-journal-closed", "w1+w2", "ListView1") + LEAVE)
SECOND = (unlocked("Rosebud7") + opened(0) + typed("w3") + cut_at_rest("a-page-typed", "w1+w2", "Rosebud7+w1+w2+w3")
          + ["click btnFirstPage"] + cut("a-page-turned", "w1+w2+w3", "txtM")
          + typed("w4") + CLOSE + cut("a-journal-closed", "w1+w2+w3+w4", "ListView1") + NEW_JOURNAL + CLOSE
          + cut("a-new-journal-closed", "w1+w2+w3+w4+w5", "ListView1") + OPTIONS
          + cut("options-closed", "w1+w2+w3+w4+w5", "ListView1") + opened(0) + typed("w6")
          + cut_at_rest("another-password", "w1+w2+w3+w4+w5", "Quill7+w1+w2+w3+w4+w5+w6") + CLOSE + ["pick ListView1 1", "click cmdDelete"]
          + cut("a-journal-deleted", "w1+w2+w3+w4+w6", "ListView1") + LEAVE)
SITTINGS = (FIRST, "the-end:w1+w2"), (SECOND, "the-end:w1+w2+w3+w4+w6")


def run(*words): return subprocess.run(words, check=True, capture_output=True)

@contextlib.contextmanager
def mounted(image, folder, options):
    run("mount", "-o", f"loop,{options}", image, folder)
    try: yield folder
    finally: run("umount", folder)

def data_of(folder):
    return {name: data for name, data in contents(folder).items() if DATA.fullmatch(name)}

def words_of(files):
    pages = [page for name, rows in read_all(files).items() if name.endswith(".tqf") for page in rows]
    return "+".join(sorted(word for page in pages for word in page))

class Disk:
    def __init__(self, kind, top):
        make, size, self.options, self.check = FILE_SYSTEMS[kind]
        self.image, self.folder, self.cuts = top / "image", top / "diary", top / "cuts"
        for folder in (self.folder, self.cuts): folder.mkdir()
        run("truncate", "-s", size, self.image)
        run(*make.split(), self.image)
        pathlib.Path(HOME.name, "cut").write_text(CUT.format(**vars(self)))

    def sit(self, files, script, end):
        """What was shown at the end."""
        with mounted(self.image, self.folder, self.options): furnish(self.folder, files)  # all on the disk by unmounting
        with mounted(self.image, self.folder, self.options):
            code, log = play(self.folder, script)
            assert code == 0, log
            subprocess.run(["sh", f"{HOME.name}/cut", end], stderr=subprocess.DEVNULL)
            return data_of(self.folder)

    def moments(self):
        """Of each the name, how many files were shown, and what is wrong when the power is back."""
        for image in sorted(self.cuts.glob("*[0-9]"), key=lambda path: path.stat().st_mtime_ns):
            shown = data_of(image.with_name(image.name + ".shown"))
            moment, words, *back = image.name.split(":")
            assert words_of(shown) == words, f"{moment}: {words_of(shown)} was stored, not {words}"
            with mounted(image, self.folder, self.options):
                wrong = difference(shown, data_of(self.folder))
                for expected in back: wrong += lost_at_start(self.folder, expected)
            run(*self.check.split(), image)
            yield moment, len(shown), wrong

def lost_at_start(folder, expected):
    """What the next start does wrong, which must bring the log back."""
    wrong, files = next_start(folder), data_of(folder)
    found = "+".join([read_all(files)["journal.tqt"][0], words_of(files)])
    return wrong + [f"{found} came back, not {expected}"] * (found != expected)

def difference(shown, found):
    return ([f"{name} is gone" for name in sorted(shown.keys() - found.keys())]
            + [f"{name} is back" for name in sorted(found.keys() - shown.keys())]
            + [f"{name} is the one before" for name in sorted(shown.keys() & found.keys()) if shown[name] != found[name]])

def cuts(kind):
    files = {}
    for script, end in SITTINGS:
        with tempfile.TemporaryDirectory(prefix="faults-") as top:
            disk = Disk(kind, pathlib.Path(top))
            files = disk.sit(files, script, end)
            yield from disk.moments()

def obstacle():
    if os.geteuid() != 0: return "only root can mount an image"
    if subprocess.run(["losetup", "-f"], capture_output=True).returncode: return "there are no loop devices"
    install = ["sh", "-c", ". scripts/packages.sh; install_packages $packages_to_image"]
    subprocess.run(install, cwd=ROOT)  # what could not be installed is left out
    return "" if any(shutil.which(make.split()[0]) for make, *_ in FILE_SYSTEMS.values()) else "no file system can be made"

def images():
    if why := obstacle():
        print(f"No images are cut: {why}.")
        return 0
    findings = number = 0
    for kind, (make, *_) in FILE_SYSTEMS.items():
        if not shutil.which(make.split()[0]): continue
        for moment, files, wrong in cuts(kind):
            number, findings = number + 1, findings + len(wrong)
            print(f"{kind:6} {moment:21} {files} files  {'; '.join(wrong) or 'all there'}", flush=True)
    print(f"{number} cuts; {findings} findings")
    return findings
