// Paints windows: the skin's pictures, surfaces, texts.
'use strict';

// What "rgb" of the program is in the page: red in the lowest byte.
function cssColor(color) {
    return `rgb(${color & 255},${(color >> 8) & 255},${(color >> 16) & 255})`;
}

// The skin, drawn from vectors at the size at which it is shown.
class Skin {
    constructor() {
        this.pictures = [];  // by the program's number of a picture
        this.faces = new Map();
        this.numbers = new Map();  // of names
    }

    named(name) {
        return this.numbers.get(name);
    }

    // skin: of each picture its name and number, one face's width and height, its faces, its vectors.
    async load(skin) {
        await Promise.all(skin.map(async ({name, number, width, height, faces, svg}) => {
            const image = new Image(width * faces, height);
            image.src = 'data:image/svg+xml;base64,' + svg;
            await image.decode();
            this.pictures[number] = {image, width, height};
            this.numbers.set(name, number);
        }));
    }

    face(picture, face, width, height) {
        const key = [picture, face, width, height].join();
        let drawn = this.faces.get(key);
        if (drawn === undefined) {
            const {image, width: faceWidth, height: faceHeight} = this.pictures[picture];
            drawn = document.createElement('canvas');
            drawn.width = width;
            drawn.height = height;
            drawn.getContext('2d').drawImage(image, face * faceWidth, 0, faceWidth, faceHeight, 0, 0,
                width, height);
            this.faces.set(key, drawn);
        }
        return drawn;
    }

    // Another scale: what was drawn is of no use any more.
    forget() {
        this.faces.clear();
    }
}

class Brush {
    constructor(skin) {
        this.skin = skin;
        this.context = null;
        this.surface = document.createElement('canvas');
        this.metrics = new Map();
    }

    begin(window, left, top, right, bottom, opacity) {
        if (this.context !== null) {
            this.context.restore();
        }
        this.context = window.context;
        this.context.save();
        this.context.beginPath();
        this.context.rect(left, top, right - left, bottom - top);
        this.context.clip();
        this.context.globalAlpha = opacity;
    }

    fill(left, top, right, bottom, color) {
        this.context.fillStyle = cssColor(color);
        this.context.fillRect(left, top, right - left, bottom - top);
    }

    drawFace(picture, face, left, top, width, height) {
        this.context.drawImage(this.skin.face(picture, face, width, height), left, top);
    }

    drawPixels(pixels, columns, rows, left, top, width, height) {
        if (this.surface.width !== columns || this.surface.height !== rows) {
            this.surface.width = columns;
            this.surface.height = rows;
        }
        this.surface.getContext('2d').putImageData(new ImageData(pixels, columns, rows), 0, 0);
        this.context.imageSmoothingEnabled = false;
        this.context.drawImage(this.surface, left, top, width, height);
        this.context.imageSmoothingEnabled = true;
    }

    // Above and below the base line, pixels.
    metricsOf(font) {
        let metrics = this.metrics.get(font);
        if (metrics === undefined) {
            const measured = this.context.measureText('x');
            metrics = {
                ascent: Math.round(measured.fontBoundingBoxAscent),
                descent: Math.round(measured.fontBoundingBoxDescent),
            };
            this.metrics.set(font, metrics);
        }
        return metrics;
    }

    linesOf(text, width, isWrapped) {
        const paragraphs = text.replace(/\r\n?/g, '\n').split('\n');
        if (!isWrapped) {
            return paragraphs;
        }
        const lines = [];
        for (const paragraph of paragraphs) {
            let line = null;
            for (const word of paragraph.split(' ')) {
                const longer = line === null ? word : line + ' ' + word;
                if (line !== null && this.context.measureText(longer).width > width) {
                    lines.push(line);
                    line = word;
                } else {
                    line = longer;
                }
            }
            lines.push(line === null ? '' : line);
        }
        return lines;
    }

    // align: 0 left, 1 centre, 2 right; style: 1 bold, 2 underlined, 4 wrapped.
    drawText(text, size, pitch, color, align, style, left, top, width, height) {
        const context = this.context;
        const font = `${(style & 1) !== 0 ? 'bold ' : ''}${size}px "Editor Sans", sans-serif`;
        context.font = font;
        context.fillStyle = cssColor(color);
        context.textBaseline = 'alphabetic';
        const {ascent, descent} = this.metricsOf(font);
        const isWrapped = (style & 4) !== 0;
        const lines = this.linesOf(text, width, isWrapped);
        const step = isWrapped ? pitch : ascent + descent;
        const first = isWrapped ? top : top + Math.floor((height - lines.length * step) / 2);
        lines.forEach((line, number) => {
            const length = context.measureText(line).width;
            const x = left + Math.round((width - length) * align / 2);
            const y = first + number * step + ascent;
            context.fillText(line, x, y);
            if ((style & 2) !== 0) {
                const thickness = Math.max(1, Math.round(size / 14));
                context.fillRect(x, y + thickness, Math.round(length), thickness);
            }
        });
    }

    // Without smoothing: a pixel for each step along the longer axis.
    drawLine(x1, y1, x2, y2, width, color) {
        this.context.fillStyle = cssColor(color);
        const before = (width - 1) >> 1;
        if (x1 === x2 || y1 === y2) {
            this.context.fillRect(Math.min(x1, x2) - before, Math.min(y1, y2) - before,
                Math.abs(x2 - x1) + width, Math.abs(y2 - y1) + width);
            return;
        }
        const steps = Math.max(Math.abs(x2 - x1), Math.abs(y2 - y1));
        for (let step = 0; step <= steps; ++step) {
            this.context.fillRect(Math.round(x1 + (x2 - x1) * step / steps) - before,
                Math.round(y1 + (y2 - y1) * step / steps) - before, width, width);
        }
    }

    drawTriangle(x1, y1, x2, y2, x3, y3, color) {
        this.context.fillStyle = cssColor(color);
        this.context.beginPath();
        this.context.moveTo(x1, y1);
        this.context.lineTo(x2, y2);
        this.context.lineTo(x3, y3);
        this.context.fill();
    }
}
