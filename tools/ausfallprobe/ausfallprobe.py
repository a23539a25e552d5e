#!/usr/bin/env python3
"""Kills the program in real races against the simulated devices, again and again, and looks at what its logs have kept.

  tools/ausfallprobe/ausfallprobe.py [--toetungen 100] [--neben 4] [--geraete cu,at2560,iow,lpt,4x4,rc,tk] [--saat 1]

Needs the release build (tools/programmordner.sh) with the targets ausfall_einrichten and ausfallbediener. Each race has
a program folder of its own below /tmp, no screen, and a race director who presses what comes next. Ends with 0 if no
lap older than 100 ms was lost, none is there twice, each has the time that the device saw, and each log computes to its
result."""

import argparse
import collections
import os
import pathlib
import queue
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

QUELLEN = pathlib.Path(__file__).resolve().parents[2]
ALT_MS = 100  # what is older must be on the disk
RAND_MS = 150  # around the beginning and the end of a pause a crossing may belong to either side
NAHE_MS = 400  # a busy machine may hear of a crossing here before it is told of it there
FRUEH_MS = (100, 900)  # a start is that young in a probe of starts
GESTAUT_MS = 8000  # and may have stood still for so long
ZU_LANGE_S = 120

Geraet = collections.namedtuple("Geraet", "spuren simulator bibliothek genau")
GERAETE = {  # how far a lap may be off, in ms: None where the program's own look gives the stamp
    "cu": Geraet(6, "simulator/cu_simulator", None, 0),
    "at2560": Geraet(6, "simulator/at2560_simulator", None, 0),
    "4x4": Geraet(6, "simulator/m4x4_simulator", None, None),
    "rc": Geraet(4, "ersatz/race_control/rc_simulator", "ersatz/race_control/libRaceControl.so", 0),
    "tk": Geraet(4, None, "ersatz/ftd2xx/libftd2xx.so", 0),
    "iow": Geraet(4, None, "simulator/libiowkit.so", None),
    "lpt": Geraet(4, None, "simulator/libinpout32.so", None),
}


def jetzt():
    """The clock that the program stamps with."""
    return time.monotonic() * 1000


class Leitung:
    """The lines that a process says, with the moment of each."""

    def __init__(self, prozess, nimmt):
        self.faden = threading.Thread(target=self.lesen, args=(prozess, nimmt), daemon=True)
        self.faden.start()

    @staticmethod
    def lesen(prozess, nimmt):
        for zeile in prozess.stdout:
            nimmt(jetzt(), zeile.decode("utf-8", "replace").rstrip())


class Entscheid(collections.namedtuple("Entscheid", "um wort spur zahlen")):
    def stempel(self):
        return self.zahlen[{"Runde": 2, "Abgelehnt": 1, "Durchfahrt": 0}[self.wort]]


def protokoll_lesen(datei):
    """What the race decided, on the machine's clock, each start of the program for itself."""
    laeufe, basis, zeit, wort = [[]], 0, 0, ""
    for zeile in datei.read_bytes().split(b"\r\n")[:-1]:
        teile = zeile.decode("utf-8", "replace").rpartition("*")[0].split()
        if teile[:2] == ["#", "Beginn"] or teile[:2] == ["#", "Uhr"]:
            basis = int(teile[2])
            if teile[1] == "Uhr":
                laeufe.append([])
        elif teile and teile[0].strip(".") == ">":
            zahlen = [int(z) for z in teile[2:]]
            ohne_spur = teile[1] in ("Gruen", "Pause", "Weiter", "Ende", "Letzte", "Abbruch", "Schalter")
            spur = 0 if ohne_spur else zahlen[0]
            laeufe[-1].append(Entscheid(basis + zeit, teile[1], spur, tuple(zahlen if ohne_spur else zahlen[1:])))
        elif teile and not teile[0].startswith((".", "#")):
            wort, zeit = teile[0], int(teile[1])
    return laeufe


class Rennen:
    def __init__(self, art, nummer, wahl, zufall):
        bau, self.hoechstens = wahl.bau, wahl.je_rennen
        self.wann = FRUEH_MS if wahl.frueh else (100, 7000)  # ms behind a start
        self.geraet, self.art, self.zufall = GERAETE[art], art, zufall
        self.werkzeuge = bau / "tools"
        self.ordner = pathlib.Path(tempfile.mkdtemp(prefix=f"tarvel-ausfall-{art}-{nummer}-"))
        self.fahrten = []  # (moment, lane, lap time or None)
        self.ereignisse = queue.Queue()  # what the race director did
        self.zahlen, self.fehler = collections.Counter(), []
        self.simulator = None
        self.nicht_gehoert = set()  # lanes with a crossing from just before the program was killed
        self.durchfahrten = set()  # lanes with a crossing that the next lap is counted for
        shutil.copytree(QUELLEN / "data", self.ordner, dirs_exist_ok=True)
        shutil.copy(bau / "ui" / "tarvel", self.ordner)
        if self.geraet.bibliothek:
            shutil.copy(self.werkzeuge / self.geraet.bibliothek, self.ordner)
        self.optionen = ["--spuren", str(self.geraet.spuren), "--saat", str(zufall.randrange(1, 10**6)),
                         "--rundenzeit", str(zufall.randrange(700, 1500)), "--streuung", "250"]
        (self.ordner / "simulator.txt").write_text(" ".join(self.optionen))
        if art == "at2560":
            subprocess.run([self.werkzeuge / self.geraet.simulator, "--profil", self.ordner / "tvk_at2560.uart"],
                           check=True, stdout=subprocess.DEVNULL)
        subprocess.run([self.werkzeuge / "ausfallprobe" / "ausfall_einrichten", self.ordner, art,
                        str(zufall.randrange(8, 40))], check=True, stdout=subprocess.DEVNULL)
        self.umgebung = dict(os.environ, QT_QPA_PLATFORM=os.environ.get("QT_QPA_PLATFORM", "offscreen"),
                             QT_QPA_GENERIC_PLUGINS="ausfallbediener",
                             QT_PLUGIN_PATH=str(self.werkzeuge / "ausfallprobe"), HOME=str(self.ordner),
                             XDG_CACHE_HOME=str(self.ordner / "cache"))

    def simulator_sagt(self, um, zeile):
        with (self.ordner / "geraet.txt").open("a") as mit:
            mit.write(f"{um:.0f} {zeile}\n")
        if runde := re.match(r"Wagen (\d)  Runde \d+ +(\d+),(\d{3}) s", zeile):
            self.fahrten.append((um, int(runde[1]), int(runde[2]) * 1000 + int(runde[3])))
        elif erste := re.match(r"Wagen (\d)  erste", zeile):
            self.fahrten.append((um, int(erste[1]), None))
        elif zeile.startswith("Bereit"):
            self.ereignisse.put(zeile)

    def programm_sagt(self, um, zeile):
        if zeile.startswith("Bediener: "):
            self.ereignisse.put(zeile)
            with (self.ordner / "bediener.txt").open("a") as mit:
                mit.write(f"{um:.0f} {zeile}\n")
        else:
            self.simulator_sagt(um, zeile)

    def fahren(self, weiter):
        """To its end, or until `weiter` says no more."""
        try:
            if self.geraet.simulator:
                befehl = [self.werkzeuge / self.geraet.simulator, "--ordner", self.ordner, "--com", "7"]
                befehl += self.optionen
                self.simulator = subprocess.Popen(befehl, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                             stdin=subprocess.PIPE)
                Leitung(self.simulator, self.simulator_sagt)
                self.ereignisse.get(timeout=20)
            while weiter():
                if self.einmal_starten():
                    self.nachrechnen()
                    break
                self.zahlen["toetungen"] += 1
                self.pruefen()
        finally:
            if self.simulator:
                self.simulator.terminate()
                self.simulator.wait()

    def einmal_starten(self):
        """True if the race came to its end and was saved."""
        self.gestartet = jetzt()
        self.davor = self.stelle()
        if not self.geraet.simulator and self.davor[0]:  # its cars begin with the program: those of a race are under way
            (self.ordner / "simulator.txt").write_text(" ".join(self.optionen + ["--sofort"]))
        p = subprocess.Popen([self.ordner / "tarvel"], cwd=self.ordner, env=self.umgebung, stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL)
        leitung = Leitung(p, self.programm_sagt)
        darf_enden = self.zahlen["toetungen"] >= self.hoechstens
        frueh = self.zufall.random() < 0.15 and not darf_enden and self.wann != FRUEH_MS
        ende = self.gestartet + self.zufall.uniform(100, 9000) if frueh else None
        fertig = False
        while (ende is None or jetzt() < ende) and not fertig:
            if ende is None and self.faehrt() and not darf_enden:
                ende = jetzt() + self.zufall.uniform(*self.wann)
            if jetzt() - self.gestartet > ZU_LANGE_S * 1000:
                self.fehler.append("comes to nothing")
                break
            if p.poll() is not None:
                self.fehler.append(f"ended by itself: {p.returncode}")
                break
            try:
                fertig = "gespeichert" in self.ereignisse.get(timeout=0.1 if ende is None else 0.02)
            except queue.Empty:
                pass
        while fertig and b"# Ergebnis" not in self.protokoll().read_bytes() and jetzt() - self.gestartet < 150000:
            time.sleep(0.1)
        self.getoetet = jetzt()
        p.send_signal(signal.SIGKILL)
        p.wait()
        leitung.faden.join()
        return fertig

    def protokoll(self):
        alle = sorted((self.ordner / "Ergebnisse" / "Protokoll").glob("*.txt"))
        return alle[-1] if alle else None

    def stelle(self):
        datei = self.protokoll()
        return datei, datei.read_bytes().count(b"\n# Uhr ") if datei else 0

    def faehrt(self):
        """The race that this start of the program drives is under way."""
        inhalt = self.protokoll().read_bytes() if self.protokoll() else b""
        if self.stelle() == self.davor:
            return False  # it has not gone on yet
        stand = inhalt.rpartition(b"\n# Uhr ")[2]
        unterwegs = max(stand.rfind(b"> Weiter"), stand.rfind(b"> Gruen")) > stand.rfind(b"> Pause")
        if unterwegs and self.art == "rc":  # it sees no light
            self.simulator.stdin.write(b"los\n")
            self.simulator.stdin.flush()
        return unterwegs

    def melden(self, text):
        self.fehler.append(text)
        self.zahlen[text.split(":")[0]] += 1

    def pruefen(self):
        time.sleep(0.05)  # until what the simulator said has been read
        datei = self.protokoll()
        if not datei:
            return
        laeufe = protokoll_lesen(datei)
        self.luecken_suchen(laeufe)
        if laeufe[-1] and laeufe[-1][-1].um >= self.gestartet:
            self.lauf_vergleichen(laeufe[-1])

    def luecken_suchen(self, laeufe):
        """Laps are numbered without a gap and without one twice, whatever lies between."""
        stand = {}
        for e in (e for lauf in laeufe for e in lauf if e.wort == "Runde"):
            if e.spur in stand and e.zahlen[0] != stand[e.spur] + 1:
                self.melden(f"verzaehlt: Spur {e.spur}, {stand[e.spur]} -> {e.zahlen[0]}")
            stand[e.spur] = e.zahlen[0]

    def lauf_vergleichen(self, lauf):
        strecken, seit = [], None
        for e in lauf:
            if e.wort in ("Gruen", "Weiter"):
                seit = e.um
            elif e.wort in ("Pause", "Ende") and seit is not None:
                strecken.append((seit, e.um))
                seit = None
        if seit is not None:
            strecken.append((seit, self.getoetet))
        for spur in range(1, self.geraet.spuren + 1):
            self.spur_vergleichen(spur, lauf, strecken)

    def spur_vergleichen(self, spur, lauf, strecken):
        fahrten = [f for f in self.fahrten if f[1] == spur and self.gestartet - 500 < f[0] < self.getoetet]
        entscheide = [e for e in lauf if e.spur == spur and e.wort in ("Runde", "Abgelehnt", "Durchfahrt")]
        frei, zu = list(fahrten), {}
        # Between stamp and look lies what the line takes and what a busy machine adds: the least of it is the line's.
        versatz = min((e.um - e.stempel() for e in lauf if e.wort == "Runde"), default=0)
        for e in sorted(entscheide, key=lambda e: e.wort != "Runde"):  # the refused ones take what is left
            um = e.stempel() + versatz if abs(e.stempel() + versatz - e.um) < GESTAUT_MS else e.um
            if e.wort == "Runde" and spur in self.durchfahrten and not any(abs(um - f[0]) < NAHE_MS for f in frei):
                self.durchfahrten.discard(spur)  # it had rolled over the line as the pause began
                continue
            passende = [f for f in frei if abs(um - f[0]) < NAHE_MS]
            if passende:
                zu[e] = min(passende, key=lambda f: abs(um - f[0]))
                frei.remove(zu[e])
            elif e.wort == "Runde" and spur in self.nicht_gehoert:
                self.nicht_gehoert.discard(spur)  # the device has kept it, and told it when it was asked again
                self.zahlen["nachgereicht"] += 1
            elif e.wort == "Runde":
                naechste = min((um - f[0] for f in fahrten), key=abs, default=None)
                self.melden(f"doppelt: Spur {spur} Runde {e.zahlen[0]} um {e.um}, Überfahrt {naechste} ms davor")
            if e.wort == "Durchfahrt":
                self.durchfahrten.add(spur)
        if strecken:  # else nobody has asked the device since
            self.nicht_gehoert.discard(spur)
        for f in frei:
            if f[0] > self.getoetet - GESTAUT_MS / 4:
                self.nicht_gehoert.add(spur)
            alter = self.getoetet - f[0]
            in_fahrt = any(von + RAND_MS < f[0] < bis - (RAND_MS if bis < self.getoetet else 0)
                           for von, bis in strecken)
            if in_fahrt and alter > ALT_MS:
                self.melden(f"verloren: Spur {spur}, {alter:.0f} ms alt, um {f[0]:.0f}")
            elif in_fahrt:
                self.zahlen["zu jung"] += 1
        self.zeiten_vergleichen(spur, entscheide, zu, fahrten, strecken)

    def zeiten_vergleichen(self, spur, entscheide, zu, fahrten, strecken):
        runden = [e for e in entscheide if e.wort == "Runde"]
        self.zahlen["runden"] += len(runden)
        for davor, e in zip(runden, runden[1:]):
            if davor not in zu or e not in zu or fahrten.index(zu[e]) != fahrten.index(zu[davor]) + 1:
                continue
            if not any(von <= davor.um and e.um <= bis for von, bis in strecken) or zu[e][2] is None:
                continue
            abweichung = abs(e.zahlen[1] - zu[e][2])
            erlaubt = self.geraet.genau if self.geraet.genau is not None else 300
            self.zahlen["verglichen"] += 1
            if abweichung > erlaubt:
                self.melden(f"falsche Zeit: Spur {spur} Runde {e.zahlen[0]}: {e.zahlen[1]} statt {zu[e][2]}")

    def nachrechnen(self):
        self.pruefen()
        self.zahlen["rennen"] += 1
        lauf = subprocess.run([self.werkzeuge / "nachrechnen" / "nachrechnen", self.protokoll()],
                              stdout=subprocess.PIPE, check=False)
        text = lauf.stdout.decode("utf-8", "replace")
        self.zahlen["nachgerechnet"] += 1
        if lauf.returncode != 0 or ".csv: gleich" not in text:
            self.melden("nachgerechnet anders: " + text)


class Probe:
    def __init__(self, wahl):
        self.wahl, self.schloss = wahl, threading.Lock()
        self.zahlen, self.fehler, self.nummer = collections.Counter(), [], 0
        self.ende = jetzt() + wahl.minuten * 60000

    def weiter(self):
        return self.zahlen["toetungen"] + self.unterwegs() < self.wahl.toetungen and jetzt() < self.ende

    def unterwegs(self):
        return sum(r.zahlen["toetungen"] for r in self.laufende.values())

    def faden(self, platz):
        while self.weiter():
            with self.schloss:
                self.nummer += 1
                nummer = self.nummer
            art = self.wahl.geraete[nummer % len(self.wahl.geraete)]
            rennen = Rennen(art, nummer, self.wahl, random.Random(self.wahl.saat * 10007 + nummer))
            self.laufende[platz] = rennen
            try:
                rennen.fahren(self.weiter)
            except Exception as fehler:  # one race that cannot be driven must not end the others
                rennen.fehler.append(f"{type(fehler).__name__}: {fehler}")
            with self.schloss:
                del self.laufende[platz]
                self.zahlen += rennen.zahlen
                self.zahlen["toetungen " + art] += rennen.zahlen["toetungen"]
                self.zahlen["rennen " + art] += rennen.zahlen["rennen"]
                self.fehler += [f"{rennen.ordner}: {f}" for f in rennen.fehler]
                print(nummer, art, dict(rennen.zahlen), *rennen.fehler, sep="  ", flush=True)
            if not rennen.fehler and not self.wahl.behalten:
                shutil.rmtree(rennen.ordner, ignore_errors=True)

    def laufen(self):
        self.laufende = {}
        faeden = [threading.Thread(target=self.faden, args=(platz,)) for platz in range(self.wahl.neben)]
        for f in faeden:
            f.start()
            time.sleep(1)  # the starts of the program beside each other
        for f in faeden:
            f.join()
        print("\nZusammen:", dict(self.zahlen))
        for f in self.fehler:
            print(f)
        return 1 if self.fehler else 0


def main():
    p = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    p.add_argument("--toetungen", type=int, default=100)
    p.add_argument("--minuten", type=float, default=60)
    p.add_argument("--neben", type=int, default=4)
    p.add_argument("--je-rennen", type=int, default=1000, help="dann fährt es ungestört zu Ende")
    p.add_argument("--saat", type=int, default=1)
    p.add_argument("--geraete", type=lambda s: s.split(","), default=list(GERAETE))
    p.add_argument("--frueh", action="store_true", help="nur kurz nach Grün")
    p.add_argument("--behalten", action="store_true", help="die Programmordner bleiben")
    p.add_argument("--bau", type=lambda s: pathlib.Path(s).resolve(), default=QUELLEN / "build" / "release")
    return Probe(p.parse_args()).laufen()


if __name__ == "__main__":
    sys.exit(main())
