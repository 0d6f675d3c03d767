"""Every text in the letters that the page brings along."""
import page_case
from desk import script

# Sets each text that is painted against the place that it has.
MEASURE = """
window.texts = new Set(); window.tooLong = new Set();
{
    const brush = page.brush, draw = brush.drawText;
    brush.drawText = function (text, size, pitch, color, align, style, left, top, width, height) {
        draw.apply(this, arguments);
        const isWrapped = (style & 4) !== 0, lines = this.linesOf(text, width, isWrapped);
        const {ascent, descent} = this.metricsOf(this.context.font);
        // Not the room that the letters claim, but what of them is seen below the base line.
        const below = this.context.measureText(lines[lines.length - 1]).actualBoundingBoxDescent;
        const long = Math.max(...lines.map((line) => this.context.measureText(line).width));
        const step = isWrapped ? pitch : ascent + descent;
        const high = (lines.length - 1) * step + ascent + below;
        texts.add(text);
        if (long > width + 0.5 || high > height) {
            tooLong.add(`${text}: ${long} x ${high} in ${width} x ${height}`);
        }
    };
}
0
"""
HELP = ("Contents", "Starting Out", "Simple", "Icons", "Advanced", "Advanced TE", "About")


class Texts(page_case.PageCase):
    def test_every_text_fits_its_place(self):
        desk = self.desk
        desk.open()
        self.page.evaluate(script(MEASURE))
        desk.click("frmSplash", 100, 100)
        desk.press("Large", window="SizeSelect")
        desk.until("windowOf(771)")
        desk.rest()
        for value in range(0, 1665, 64):
            self.page.evaluate(script(f"""{{
                const strip = partOf(windowOf(771), 'Option strip');
                strip.value = {value};
                strip.dispatchEvent(new Event('input'));
            }}"""))
            desk.rest()
        desk.choose("Help")
        for topic in HELP:
            desk.choose(topic, window="HelpBox")
        texts = self.page.evaluate("[...texts]")
        self.assertEqual(self.page.evaluate("[...tooLong]"), [])
        for word in ("Please choose the size of your map:", "Fractal Terrain Options", "Draw height"):
            self.assertIn(word, texts)
        self.assertGreater(len(texts), 100)
