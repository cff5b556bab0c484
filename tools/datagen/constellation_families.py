"""The eight families of constellations.

No Debian package carries this grouping, so it stands here as a cited table:
Donald H. Menzel, "A Field Guide to the Stars and Planets", Houghton Mifflin, 1964
(second edition 1983), which sorts the 88 IAU constellations into eight families.
It holds names only; the generator checks that the families hold each of the 88
constellations of Stellarium and KStars exactly once.
"""

FAMILIES = [
    ("Ursa Major", ["Ursa Major", "Ursa Minor", "Draco", "Canes Venatici", "Bootes",
                    "Coma Berenices", "Corona Borealis", "Camelopardalis", "Lynx",
                    "Leo Minor"]),
    ("Zodiacal", ["Aries", "Taurus", "Gemini", "Cancer", "Leo", "Virgo", "Libra", "Scorpius",
                  "Sagittarius", "Capricornus", "Aquarius", "Pisces"]),
    ("Perseus", ["Cassiopeia", "Cepheus", "Andromeda", "Perseus", "Pegasus", "Cetus",
                 "Auriga", "Lacerta", "Triangulum"]),
    ("Hercules", ["Hercules", "Sagitta", "Aquila", "Lyra", "Cygnus", "Vulpecula", "Hydra",
                  "Sextans", "Crater", "Corvus", "Ophiuchus", "Serpens", "Scutum",
                  "Centaurus", "Lupus", "Corona Australis", "Ara", "Triangulum Australe",
                  "Crux"]),
    ("Orion", ["Orion", "Canis Major", "Canis Minor", "Lepus", "Monoceros"]),
    ("Heavenly Waters", ["Delphinus", "Equuleus", "Eridanus", "Piscis Austrinus", "Carina",
                         "Puppis", "Vela", "Pyxis", "Columba"]),
    ("Bayer", ["Hydrus", "Dorado", "Volans", "Apus", "Pavo", "Grus", "Phoenix", "Tucana",
               "Indus", "Chamaeleon", "Musca"]),
    ("La Caille", ["Norma", "Circinus", "Telescopium", "Microscopium", "Sculptor", "Fornax",
                   "Caelum", "Horologium", "Octans", "Mensa", "Reticulum", "Pictor",
                   "Antlia"]),
]
