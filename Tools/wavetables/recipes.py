"""The seventy tables, category by category in the order of the menu: name, spectrum of both sides, and why.

The key in reaching ("C4") is the highest C that the table plays without folding back: C3 for basses, C4 for what
wants to be bright, C5 for leads and organs, C6 for what has to stay pure.
"""

import math
from collections import namedtuple

from .spectrum import (
    Dice, HARMONICS, Spectrum, centred, corners, drawbars, from_phase, gain, held, jumps, modulated, partials, plucked,
    pulse, ranks, saw, sides, sines, synced, widened)

Table = namedtuple("Table", "name pair why")  # pair () gives the spectra of left and right


# Instruments that several tables share

def folded(drive):
    """A triangle driven past a mirror at +-1 several times."""
    return from_phase(lambda place: math.asin(math.sin(drive * math.sin(2.0 * math.pi * place))))


def overdriven(spectrum, drive, bias=0.0):
    """Through a valve: soft on both sides, and with a bias not alike, which brings the even harmonics."""
    return spectrum.bent(lambda value: math.tanh(drive * (value + bias)))


def noise(seed, reach, tilt=0.0):
    """Every harmonic with a level and a phase of its own, as if one cycle were cut from a hiss."""
    dice = Dice(seed)
    rough = Spectrum([0j] + [complex(dice.roll() + dice.roll(), dice.roll() + dice.roll())
                             for _ in range(HARMONICS)])
    return rough.tilted(tilt).reaching(reach)


def charging(steepness):
    """A saw that rises like a capacitor through a resistor."""
    return Spectrum([0j] + [1.0 / complex(steepness, 2.0 * math.pi * h) for h in range(1, HARMONICS + 1)])


def comb_drawn(wanted, tilt, reach):
    return partials(*(1.0 if wanted(h) else 0.0 for h in range(1, HARMONICS + 1))).tilted(tilt).reaching(reach)


def hollow(*formants):
    """A stopped pipe, odd harmonics only, with a mouth before it."""
    return pulse(0.5).tilted(-2.0).with_formants(*formants).reaching("C5")


def wheels(registration, seed, leak=-38.0):
    """Tone wheels under a rotating speaker: the horn throws the upper partials apart, the neighbours leak in."""
    neighbours = comb_drawn(lambda h: h <= 20, -1.0, "C6").uneven(8.0, seed) * gain(leak)
    return widened((drawbars(registration) + neighbours).scattered(0.12, seed), 40.0, 3.5, seed + 50)


def driven_wheels(registration, seed, drive, bias):
    return widened(overdriven(drawbars(registration).scattered(0.12, seed), drive, bias).reaching("C5"), 40.0, 3.5,
                   seed + 50)


PRINCIPAL = partials(1.0, 0.55, 0.32, 0.16, 0.09, 0.05, 0.03, 0.015)
FLUTE = partials(1.0, 0.12, 0.06, 0.015)
STOPPED = partials(1.0, 0.01, 0.28, 0.01, 0.08, 0.0, 0.02)
STRINGS = partials(*(1.0 / h ** 0.55 for h in range(1, 61))).tilted(-3.0, 14.0)


BASICS = (
    Table("ARP", lambda: centred(pulse(0.22).with_formants((5, 0.9, 3.0)).reaching("C5")),
          "A narrow pulse with a little lift at its fifth harmonic: short notes in fast runs keep their outline."),
    Table("Detuned_ARP", lambda: sides(pulse(0.22).doubled(0.085, 0.9).reaching("C5"),
                                       pulse(0.22).doubled(0.147, 0.9).reaching("C5")),
          "The same pulse twice a side, a different way apart left and right: detuning caught in one moment."),
    Table("Saw", lambda: centred(saw().reaching("C4")),
          "All harmonics at 1/h, both sides alike: the plain saw that filters expect."),
    Table("SQR", lambda: centred(pulse(0.47).highpassed(0.7).lowpassed(24.0, 4.0).reaching("C4")),
          "A square as a worn circuit gives it: its flats sag, its edges ring at harmonic 24, and it is 47 % wide."),
    Table("First", lambda: centred(partials(1.0, 0.6, 0.4, 0.3, 0.24).reaching("C6")),
          "The first five harmonics and nothing else: the tone from which one starts to learn."),
    Table("Retro", lambda: centred(held([7.5 - abs(i - 7.5) + (i % 2) * 1.1 for i in range(16)]).reaching("C4")),
          "A triangle of sixteen coarse steps, as game consoles had it: the steps whistle around harmonic 16."),
    Table("Sine", lambda: centred(sines({1: 1.0})),
          "One harmonic."),
    Table("SAW_2", lambda: widened(jumps((0.5, -1.0), (0.66, -0.9)).reaching("C4"), 30.0, 1.5, 8),
          "A saw with a second, lower tooth close behind: dips around harmonics 3, 9 and 15, as of two saws a little apart."),
    Table("Square", lambda: centred(pulse(0.5).reaching("C5")),
          "Odd harmonics at 1/h, nothing between: the plain square."),
    Table("HollinA", lambda: centred(hollow((3.6, 0.35, 14.0), (5.4, 0.25, 12.0), (11.5, 0.25, 12.0))),
          "Hollow, with the open mouth of an A: formants near 800, 1200 and 2500 Hz."),
    Table("HollinB", lambda: centred(hollow((1.0, 0.6, 6.0), (5.0, 1.0, -16.0), (30.0, 1.4, -24.0))),
          "Hollow, with the lips closed as before a B: hardly more than a hum."),
    Table("HollinE", lambda: centred(hollow((2.2, 0.4, 5.0), (5.0, 0.5, -16.0), (9.2, 0.22, 20.0), (13.0, 0.25, 18.0))),
          "Hollow, with the mouth of an E: low formant near 480, upper ones near 2000 and 2800 Hz."),
    Table("Fair_Square", lambda: centred(corners((0.11, 1.0), (0.39, 1.0), (0.61, -1.0), (0.89, -1.0)).reaching("C5")),
          "A square with leaning flanks: it sits fairly between square and triangle."),
    Table("TRI", lambda: centred(corners((0.25, 1.0), (0.75, -1.0)).reaching("C5")),
          "Odd harmonics at 1/h^2: the plain triangle."),
)

BUZZY = (
    Table("Buzz", lambda: widened(pulse(0.035).scattered(0.15, 15).reaching("C4"), 30.0, 2.0, 15),
          "A very narrow pulse: harmonics of nearly equal level up to the twentieth."),
    Table("Fattie_Pattie", lambda: widened(overdriven((saw().doubled(0.31, 0.8) + sines({1: 0.45, 2: 0.2})), 2.6, 0.2)
                                           .reaching("C3"), 35.0, 2.0, 16),
          "Two saws on a thick fundamental, pressed together by overdrive: fat below and buzzing above."),
    Table("Triaj", lambda: widened(folded(7.4).reaching("C4"), 25.0, 1.5, 17),
          "A triangle folded back three times: the fold's own formants around harmonics 5 to 9."),
    Table("Flat", lambda: widened(comb_drawn(lambda h: h <= 46, 0.0, "C5").scattered(0.5, 18), 30.0, 1.0, 18),
          "A flat line of harmonics, all at one level, their phases strewn so that no spike stands out."),
    Table("Checks_Out", lambda: sides(comb_drawn(lambda h: h % 8 in (1, 2, 3, 4), -4.0, "C4").scattered(0.25, 19),
                                      comb_drawn(lambda h: h == 1 or h % 8 in (0, 5, 6, 7), -4.0, "C4")
                                      .scattered(0.25, 20)),
          "A checkerboard: harmonics in fours, by turns on the left and on the right."),
    Table("Spiky", lambda: widened(jumps((0.0, 1.0), (0.012, -1.0), (0.19, -0.8), (0.2, 0.8), (0.55, 0.9), (0.562, -0.9),
                                         (0.68, -0.7), (0.69, 0.7)).scattered(0.15, 21).reaching("C4"), 20.0, 2.0, 21),
          "Four thin spikes of both signs at uneven distances: rough, with holes where they cancel."),
)

CLASSICS = (
    Table("Octaves", lambda: widened(ranks(saw().tilted(-3.0), {1: 1.0, 2: 1.0, 4: 0.9, 8: 0.6}).reaching("C4"), 35.0,
                                     1.5, 22),
          "Saws in four octaves at once."),
    Table("Another_Saw", lambda: centred(charging(4.0).times(lambda h: 1.0 if h % 2 else 0.3).tilted(-3.0).reaching("C4")),
          "The bent saw of a charging capacitor, its even harmonics held back and its edge rounded: half way to a triangle."),
    Table("Its_a_Prophet", lambda: widened((saw() + 0.7 * pulse(0.3).delayed(0.2)).laddered(9.0, 0.8).reaching("C4"),
                                           40.0, 2.5, 24),
          "Saw and pulse of one voice through a four-pole filter that is half open: the brass of polyphonic analogues."),
    Table("Bass_Boy", lambda: centred((pulse(0.5) + 0.5 * saw()).laddered(3.2, 1.2).reaching("C3")),
          "Square and saw through a closed four-pole filter: nearly all below harmonic 5."),
    Table("Super_Mooj", lambda: widened(overdriven(saw().doubled(0.23).laddered(5.5, 2.9), 1.8, 0.1).reaching("C3"),
                                        20.0, 1.0, 26),
          "Two saws, a ladder filter with strong resonance at harmonic 5 or 6, and a hot mixer behind it."),
    Table("Res_His", lambda: sides(*(saw().tilted(-3.0).lowpassed(17.0, 22.0) + 0.14 * noise(seed, "C4", -1.5).only(lambda h: h > 9)
                                     .even_out() for seed in (270, 271))),
          "A saw whose filter rings at harmonic 17, with a hiss around it that differs from side to side."),
    Table("Sined_Harm", lambda: widened(sines({1: 1.0, 3: 0.55, 5: 0.4, 8: 0.3, 13: 0.2, 21: 0.12}).scattered(0.2, 28),
                                        40.0, 2.5, 28),
          "Sines on a growing series of harmonics (1, 3, 5, 8, 13, 21), each the sum of two before: airy and glassy."),
    Table("OP_Vibes", lambda: widened(modulated(1, 4, 0.75) + sines({10: 0.1}), 30.0, 2.0, 29),
          "One operator swings another at four times its pitch: struck bars with a tube below."),
    Table("Sined_up", lambda: centred(from_phase(lambda place: math.sin(2.0 * math.pi * (place ** 3 * 2.2 + place * 0.8)))
                                      .reaching("C5")),
          "A sine that hurries through its cycle three times, faster and faster."),
    Table("Rich", lambda: widened(ranks(saw(), {1: 0.6, 2: 0.5, 3: 0.9}).uneven(3.0, 31).scattered(0.3, 31)
                                  .reaching("C4"), 45.0, 3.0, 31),
          "Saws on the ground note, its octave and its twelfth, uneven and strewn over the sides: an ensemble."),
)

HAMMOND = (
    Table("Hammond_5", lambda: wheels("80 8000 000", 32),
          "80 8000 000: suboctave and ground note only, the darkest."),
    Table("Hammond_6", lambda: wheels("86 8400 000", 33),
          "86 8400 000: ballads, round and close."),
    Table("Hammond_7", lambda: wheels("80 0800 000", 34),
          "80 0800 000: two octaves with nothing between, a whistle over its own bass."),
    Table("Hammond_8", lambda: wheels("88 8000 000", 35),
          "88 8000 000: the first three drawbars out, the sound of organ trios."),
    Table("Hammond_9", lambda: wheels("60 8080 000", 36),
          "60 8080 000: ground note and its fifth above, a quiet stopped flute."),
    Table("Hammond_10", lambda: wheels("84 8848 300", 37),
          "84 8848 300: an accompaniment with all octaves and some of the rest."),
    Table("Hammond_11", lambda: wheels("80 0008 880", 38),
          "80 0008 880: a void between the suboctave and a cluster of high partials, thin and reedy."),
    Table("Hammond_12", lambda: wheels("80 0000 888", 39),
          "80 0000 888: suboctave and the three highest drawbars, the whistling block chords of small combos."),
    Table("Hammond_13", lambda: wheels("88 8000 888", 40),
          "88 8000 888: lowest three and highest three, hollow amid."),
    Table("Hammond_14", lambda: wheels("80 8808 008", 41),
          "80 8808 008: octaves only, the bright shout of gospel."),
    Table("Hammond_15", lambda: wheels("88 8888 888", 42, -30.0),
          "88 8888 888: all out."),
    Table("Hammond_16", lambda: driven_wheels("88 8000 000", 43, 3.0, 0.25),
          "88 8000 000 through an overdriven valve amplifier: growls as soon as two keys are held."),
    Table("Hammond_17", lambda: driven_wheels("80 0888 888", 44, 4.5, 0.1),
          "80 0888 888 through an amplifier at its end: the organ that competes with guitars."),
)

MIDDY = (
    Table("Nasal", lambda: widened(pulse(0.14).with_formants((2.2, 0.5, -10.0), (5.0, 0.3, 14.0), (11.0, 0.25, 9.0))
                                   .reaching("C5"), 20.0, 1.5, 45),
          "A pulse with a hole at 500 and a peak at 1100 Hz, what a nose does to a voice."),
    Table("Intimate", lambda: widened(saw().tilted(-5.0).with_formants((1.6, 0.5, 6.0), (4.0, 0.4, 7.0), (14.0, 0.4, 12.0))
                                      .scattered(0.15, 46).reaching("C5"), 40.0, 3.0, 46),
          "A soft voice near the ear: low formants of an O and a breath of upper ones, spread around the head."),
    Table("Ducky", lambda: widened(jumps((0.0, 1.0), (0.31, -1.0), (0.5, 0.6), (0.72, -0.6))
                                   .with_formants((1.5, 0.8, -9.0), (7.5, 0.28, 20.0), (16.0, 0.2, 12.0)).reaching("C5"),
                                   20.0, 1.5, 47),
          "One narrow formant at harmonic 7 over a thin ground: quack."),
    Table("Slingy", lambda: widened(plucked(1.0 / 7.0).tilted(1.5, 8.0).doubled(0.02, -0.35).scattered(0.16, 48).reaching("C4"), 45.0, 2.5, 48),
          "A string slung at a seventh of its length, so harmonics 7, 14, 21 are missing, with a buzzing bridge."),
    Table("Cuts_Through", lambda: widened(saw().tilted(-2.0).highpassed(2.0).with_formants((13.0, 0.4, 21.0)).scattered(0.16, 49).reaching("C4"), 25.0,
                                          1.5, 49),
          "A lean saw with the presence of 2.5 to 4 kHz raised, where a mix leaves room and ears are keenest."),
    Table("Knife", lambda: centred(synced(4.62).highpassed(3.0).reaching("C4")),
          "A saw set back before its fifth tooth is done: the hard edge of oscillator sync at harmonics 4 and 5."),
    Table("Knit_and_Grit", lambda: sides(*((held([round(4.0 * math.sin(2.0 * math.pi * (i / 24 + 0.11 * math.sin(
        2.0 * math.pi * (i + shift) / 12)))) for i in range(24)]) + 0.25 * noise(seed, "C4", -2.0).even_out())
        .reaching("C4") for seed, shift in ((500, 0), (501, 1)))),
          "A sine knitted from 24 crude steps, with grit of its own on either side."),
    Table("Vibration", lambda: widened(from_phase(lambda place: math.exp(3.5 * math.cos(2.0 * math.pi * place))
                                                  * math.sin(2.0 * math.pi * (place + 0.08 * math.sin(4.0 * math.pi * place))))
                                       .with_formants((3.0, 0.5, 6.0)).reaching("C5"), 30.0, 2.0, 52),
          "Lips that open once a cycle into a brass tube: strongest at harmonics 2 to 4, then falling evenly."),
    Table("Oboe", lambda: widened(saw().tilted(-1.0).with_formants((1.2, 0.5, -9.0), (4.6, 0.35, 12.0), (8.5, 0.25, -9.0),
                                                                   (13.5, 0.3, 12.0)).scattered(0.1, 53).reaching("C5"),
                                  30.0, 2.0, 53),
          "Double reed: a weak ground, formants near 1 and 3 kHz and the gap between them."),
    Table("Mellow", lambda: widened(partials(1.0, 0.62, 0.36, 0.2, 0.1, 0.05, 0.025, 0.012).scattered(0.1, 54), 35.0,
                                    2.0, 54),
          "Each harmonic about half the one before: a horn played softly."),
)

ORGAN = (
    Table("Church", lambda: sides(ranks(PRINCIPAL, {1: 0.9, 2: 0.9, 4: 0.7, 6: 0.45, 12: 0.25}).scattered(0.2, 550)
                                  .reaching("C5"),
                                  ranks(PRINCIPAL, {1: 0.9, 2: 0.8, 3: 0.5, 4: 0.6, 8: 0.45}).scattered(0.2, 551)
                                  .reaching("C5")),
          "Principals of 8', 4' and 2' on both sides, the quint on the right, and a mixture shared out between them."),
    Table("Harmonium", lambda: widened(saw().tilted(2.5).with_formants((2.0, 0.4, 5.0), (6.5, 0.35, -8.0), (10.0, 0.4, 5.0))
                                       .tilted(-9.0, 14.0).scattered(0.2, 56).reaching("C5"), 30.0, 2.0, 56),
          "Free reeds in a wooden case: many strong harmonics, a dip at 1400 Hz, little above 3 kHz."),
    Table("Oregano", lambda: widened(ranks(FLUTE, {1: 1.0, 2: 0.25, 3: 0.8, 5: 0.9, 10: 0.2}).reaching("C5"), 35.0, 2.5, 57),
          "Flutes with quint and tierce, harmonics 3 and 5: the spice rack of the organ."),
    Table("Orchestral", lambda: sides(*((0.4 * STRINGS.uneven(3.0, seed) + ranks(FLUTE, {1: 0.6, 2: 0.8, 4: 0.3}))
                                        .scattered(0.18, seed).reaching("C5") for seed in (582, 583))),
          "String pipes with flutes of 8', 4' and 2'; both sides speak with phases of their own, like two ranks a little apart."),
    Table("Healthy", lambda: widened(ranks(STOPPED, {1: 1.0, 2: 0.9, 4: 0.35}).reaching("C5"), 35.0, 2.0, 59),
          "Stopped flutes of 8', 4' and 2': full, clear, nothing shrill."),
    Table("Cheap_Organ", lambda: widened(ranks(pulse(0.5), {1: 1.0, 2: 0.4, 4: 0.8, 8: 0.8}).lowpassed(16.0, 1.6)
                                         .reaching("C5"), 15.0, 1.0, 60),
          "Squares from a chain of dividers, the high ones loud, behind one plain filter: the portable combo organ."),
    Table("Basics_Organ_2", lambda: centred(sines({1: 1.0, 2: 0.7, 3: 0.6, 4: 0.4, 6: 0.5, 9: 0.25})),
          "Ground and octave with quints over quints (3, 6, 9)."),
    Table("Basics_Organ", lambda: centred(sines({1: 0.8, 2: 1.0, 4: 0.8, 5: 0.12, 8: 0.55, 16: 0.15})),
          "Five octaves of sines, strongest at 4', with a hint of tierce."),
)

SMOOTH = (
    Table("Thin_and_Clean", lambda: widened(sines({1: 0.5, 2: 0.3, 3: 0.55, 5: 0.3, 7: 0.18, 9: 0.08}), 35.0, 2.0, 63),
          "A few odd harmonics with a small ground: slender and without edges."),
    Table("Soothing", lambda: widened(partials(1.0, 0.22, 0.03, 0.008), 30.0, 2.0, 64),
          "A sine with a touch of octave."),
    Table("Medow", lambda: widened(sines({1: 1.0, 2: 0.12, 3: 0.3, 4: 0.2, 6: 0.14, 8: 0.12, 9: 0.08, 12: 0.07, 16: 0.05})
                                   .scattered(0.5, 65), 45.0, 5.0, 65),
          "A soft ground with fifths and octaves far above it, each in its own place between the sides: open air."),
    Table("Floot", lambda: sides(*(partials(1.0, 0.5, 0.16, 0.05, 0.03, 0.01).scattered(0.1, 66)
                                   + noise(seed, "C6", -2.0).only(lambda h: h > 3).even_out() * 0.035
                                   for seed in (660, 661))),
          "A flute's quickly falling harmonics, and breath that differs left and right."),
)

SPECIAL = (
    Table("Noisy", lambda: sides(*(noise(seed, "C3", -0.8) + sines({1: 3.0}) for seed in (670, 671))),
          "A cycle cut from noise, another on each side, with just enough ground to tell the pitch."),
    Table("Sharp", lambda: widened(comb_drawn(lambda h: True, 3.0, "C5").with_formants((30.0, 0.5, 6.0)).scattered(0.3, 68),
                                   15.0, 1.0, 68),
          "Harmonics that grow towards the top: all edge."),
    Table("Neat", lambda: widened(comb_drawn(lambda h: h % 4 == 1, -2.5, "C5").scattered(0.1, 69), 40.0, 2.0, 69),
          "Every fourth harmonic in a tidy row: 1, 5, 9, 13."),
    Table("Skinny", lambda: centred(pulse(0.11).highpassed(6.0).with_formants((9.0, 0.4, 8.0)).scattered(0.16, 70).reaching("C4")),
          "A pulse without its low half: a thin line over whatever carries it."),
    Table("Malfunction", lambda: sides(*(held([round(3.0 * Dice(seed + i).roll()) if i % 7 else -3 for i in range(28)])
                                         .reaching("C3") for seed in (7100, 7300))),
          "A converter with stuck bits: 28 random levels a cycle, every seventh dropped, and other errors on each side."),
)

CATEGORIES = {"Basics": BASICS, "Buzzy": BUZZY, "Classics": CLASSICS, "Hammond": HAMMOND, "Middy": MIDDY,
              "Organ": ORGAN, "Smooth": SMOOTH, "Special": SPECIAL}
