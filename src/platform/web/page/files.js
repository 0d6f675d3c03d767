// Files, settings, pictures and sounds, as far as the browser has a part in them.
'use strict';

class PageFiles {
    // The program's file becomes a download of the same name.
    download(path) {
        const link = document.createElement('a');
        link.href = URL.createObjectURL(new Blob([FS.readFile(path)], {type: 'image/bmp'}));
        link.download = path.slice(path.lastIndexOf('/') + 1);
        link.click();
        setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    }

    // Puts the user's file where the program finds it, and returns its name there.
    async take(folder, file) {
        for (const name of FS.readdir(folder)) {
            if (name !== '.' && name !== '..') {
                FS.unlink(folder + name);
            }
        }
        const name = file.name.replace(/\//g, '_') || 'picture';
        try {
            FS.writeFile(folder + name, new Uint8Array(await file.arrayBuffer()));
        } catch (unreadable) {
            // The program finds no such file and says so.
        }
        return name;
    }

    loadSettings(path) {
        let kept = null;
        try {
            kept = localStorage.getItem(kSettingsKey);
        } catch (refused) {
            // A browser that keeps nothing: the settings live as long as the page.
        }
        if (kept !== null) {
            FS.writeFile(path, kept);
        }
    }

    keepSettings(path) {
        try {
            localStorage.setItem(kSettingsKey, FS.readFile(path, {encoding: 'utf8'}));
            return true;
        } catch (refused) {
            return false;
        }
    }
}

const kSettingsKey = 'ombrelia-terrain-editor';

// Decodes what our own readers do not.
class PagePictures {
    constructor(events) {
        this.events = events;
        this.picture = null;
        this.row = document.createElement('canvas');
        this.row.height = 1;
        this.turn = 0;
    }

    async decode(path) {
        const turn = ++this.turn;
        let picture = null;
        try {
            const bytes = plainPng(FS.readFile(path));
            picture = await createImageBitmap(new Blob([bytes]), {colorSpaceConversion: 'none'});
        } catch (unreadable) {
            picture = null;
        }
        if (turn !== this.turn) {
            if (picture !== null) {
                picture.close();
            }
            return;
        }
        this.picture = picture;
        this.events.put(kEvent.picture, picture === null ? [0, 0] : [picture.width, picture.height]);
    }

    // Transparent parts over black.
    takeRow(y, width, pixels) {
        const context = this.row.getContext('2d', {willReadFrequently: true});
        if (this.row.width !== width) {
            this.row.width = width;
        }
        context.globalCompositeOperation = 'source-over';
        context.fillStyle = 'black';
        context.fillRect(0, 0, width, 1);
        context.drawImage(this.picture, 0, y, width, 1, 0, 0, width, 1);
        const bytes = context.getImageData(0, 0, width, 1).data;
        for (let x = 0, at = 0; x < width; ++x, at += 4) {
            pixels[x] = (255 << 24) | (bytes[at] << 16) | (bytes[at + 1] << 8) | bytes[at + 2];
        }
    }

    drop() {
        ++this.turn;
        if (this.picture !== null) {
            this.picture.close();
            this.picture = null;
        }
    }
}

// A PNG without what speaks of colours on screens and paper: each grey stays what it is.
function plainPng(bytes) {
    const kSignature = [137, 80, 78, 71, 13, 10, 26, 10];
    if (!kSignature.every((byte, i) => bytes[i] === byte)) {
        return bytes;
    }
    const kLeftOut = ['gAMA', 'cHRM', 'sRGB', 'iCCP', 'cICP', 'mDCV', 'cLLI'];
    const kept = [bytes.subarray(0, 8)];
    const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
    let at = 8;
    while (at + 12 <= bytes.length) {
        const end = Math.min(at + 12 + view.getUint32(at), bytes.length);
        const kind = String.fromCharCode(...bytes.subarray(at + 4, at + 8));
        if (!kLeftOut.includes(kind)) {
            kept.push(bytes.subarray(at, end));
        }
        at = end;
    }
    kept.push(bytes.subarray(at));
    return new Blob(kept);
}

class PageSounds {
    constructor(sounds) {
        this.sounds = sounds;  // name to base64
        this.context = null;
    }

    // Silence if it cannot be played.
    async play(path) {
        const sound = this.sounds[path.slice(path.lastIndexOf('/') + 1)];
        if (sound === undefined || typeof AudioContext === 'undefined') {
            return;
        }
        try {
            if (this.context === null) {
                this.context = new AudioContext();
            }
            const bytes = Uint8Array.from(atob(sound), (letter) => letter.charCodeAt(0));
            const buffer = await this.context.decodeAudioData(bytes.buffer);
            const source = this.context.createBufferSource();
            source.buffer = buffer;
            source.connect(this.context.destination);
            source.start();
        } catch (unplayable) {
            // As on a machine without a sound card.
        }
    }
}
