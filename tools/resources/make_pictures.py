#!/usr/bin/python3
"""Draws the target pictures of the drop target and the program's icon.

    make_pictures.py RESOURCES_DIR ICON_FILE

target.gif is the resting target, 62 x 62 like the image well; target2.gif is the
same target lit, which the program shows for a second after an answer. The icon is
the resting target on a 64 x 64 transparent square. Drawn at four times the size and
scaled down, so the rings have smooth edges.
"""
import sys

from PIL import Image, ImageDraw

SIZE = 62
SCALE = 4


def target(lit):
    big = SIZE * SCALE
    image = Image.new("RGB", (big, big), (236, 236, 236))
    draw = ImageDraw.Draw(image)
    centre = big / 2
    if lit:
        # A lit target glows: warm light fading out into the corners.
        for step in range(16, 0, -1):
            r = centre * 1.42 * step / 16
            warmth = step / 16
            colour = (255, int(236 + (200 - 236) * (1 - warmth) + 19 * warmth), int(236 - 130 * (1 - warmth)))
            draw.ellipse([centre - r, centre - r, centre + r, centre + r], fill=colour)
    rings = [(0.47, (200, 30, 30) if not lit else (255, 90, 20)),
             (0.39, (250, 250, 250) if not lit else (255, 250, 200)),
             (0.31, (200, 30, 30) if not lit else (255, 90, 20)),
             (0.23, (250, 250, 250) if not lit else (255, 250, 200)),
             (0.15, (200, 30, 30) if not lit else (255, 200, 0)),
             (0.07, (120, 10, 10) if not lit else (255, 255, 255))]
    for radius, colour in rings:
        r = radius * big
        draw.ellipse([centre - r, centre - r, centre + r, centre + r], fill=colour,
                     outline=(90, 20, 20) if not lit else (200, 120, 0), width=SCALE)
    # Cross hairs through the bull's eye.
    line = (60, 60, 60) if not lit else (150, 80, 0)
    draw.line([centre, big * 0.02, centre, big * 0.98], fill=line, width=SCALE)
    draw.line([big * 0.02, centre, big * 0.98, centre], fill=line, width=SCALE)
    return image.resize((SIZE, SIZE), Image.LANCZOS)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    resources, icon = sys.argv[1], sys.argv[2]
    for lit, name in ((False, "target.gif"), (True, "target2.gif")):
        picture = target(lit)
        picture.convert("P", palette=Image.ADAPTIVE, colors=64).save(f"{resources}/{name}")
        print(f"wrote {resources}/{name}")
    square = Image.new("RGBA", (64, 64), (0, 0, 0, 0))
    resting = target(False).convert("RGBA")
    mask = Image.new("L", (SIZE * SCALE, SIZE * SCALE), 0)
    ImageDraw.Draw(mask).ellipse([SCALE, SCALE, SIZE * SCALE - SCALE, SIZE * SCALE - SCALE], fill=255)
    resting.putalpha(mask.resize((SIZE, SIZE), Image.LANCZOS))
    square.paste(resting, (1, 1), resting)
    square.save(icon)
    print(f"wrote {icon}")


if __name__ == "__main__":
    main()
