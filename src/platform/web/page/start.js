// The page: what holds the windows, and how the program begins and ends.
'use strict';

class Page {
    constructor() {
        this.root = document.getElementById('desk');
        this.windows = new Map();
        this.topmost = 0;
        this.hasWork = false;
        this.events = new PageEvents();
        this.skin = new Skin();
        this.brush = new Brush(this.skin);
        this.files = new PageFiles();
        this.pictures = new PagePictures(this.events);
        this.sounds = new PageSounds(kSounds);
        this.dialogs = new PageDialogs(this);
        this.popup = new PagePopup(this.root);
        this.chips = document.getElementById('chips');
        this.hear();
    }

    ratio() {
        return window.devicePixelRatio;
    }

    width() {
        return Math.floor(window.innerWidth * this.ratio());
    }

    height() {
        return Math.floor(window.innerHeight * this.ratio());
    }

    // Of the window in front, for what stands beside the windows.
    unit() {
        const front = [...this.windows.values()].filter((one) => !one.root.hidden)
            .sort((a, b) => a.size.scale - b.size.scale).pop();
        return front === undefined ? '1px' : `${front.size.scale / this.ratio()}px`;
    }

    window(number) {
        return this.windows.get(number);
    }

    openWindow(number, frame, title) {
        this.windows.set(number, new PageWindow(this, number, frame, title));
    }

    closeWindow(number) {
        this.windows.get(number).remove();
        this.windows.delete(number);
    }

    // The red light of the skin, for what went wrong.
    stopLight() {
        const kStopFace = 2;
        const side = Math.round(24 * Number.parseFloat(this.unit()) * this.ratio());
        const light = element('canvas', 'icon');
        light.width = light.height = side;
        light.setAttribute('aria-hidden', 'true');
        light.getContext('2d').drawImage(this.skin.face(this.skin.named('traffic'), kStopFace, side,
            side), 0, 0);
        return light;
    }

    // A minimized window waits at the foot of the page.
    addChip(window) {
        this.dropChip(window.number);
        const chip = this.chips.appendChild(element('button', '', window.caption));
        chip.dataset.window = window.number;
        chip.addEventListener('click', () => this.events.put(kEvent.restore, [window.number]));
    }

    dropChip(number) {
        for (const chip of [...this.chips.children]) {
            if (Number(chip.dataset.window) === number) {
                chip.remove();
            }
        }
    }

    setBusy(isBusy) {
        document.documentElement.classList.toggle('busy', isBusy);
    }

    setHasWork(hasWork) {
        this.hasWork = hasWork;
    }

    end() {
        this.hasWork = false;
        document.getElementById('ended').hidden = false;
        document.getElementById('again').addEventListener('click', () => window.location.reload());
    }

    hear() {
        const activate = () => this.events.put(kEvent.activate, [0]);
        window.addEventListener('focus', activate);
        window.addEventListener('blur', activate);
        window.addEventListener('resize', () => {
            this.skin.forget();
            this.popup.close();
            this.events.put(kEvent.resize, []);
        });
        window.addEventListener('beforeunload', (event) => {
            if (this.hasWork) {
                event.preventDefault();
                event.returnValue = '';
            }
        });
        document.addEventListener('keydown', (event) => this.hearKey(event));
    }

    // A key goes to the program, unless what has the focus wants it for itself, or a dialog that it
    // closed has taken it.
    hearKey(event) {
        const isForBrowser = event.ctrlKey || event.metaKey || event.altKey || event.key === 'Tab' ||
            event.key === 'F5' || event.key === 'F11' || event.key === 'F12';
        const isForFocus = document.activeElement !== null &&
            document.activeElement !== document.body &&
            ['Enter', ' ', 'ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown'].includes(event.key);
        if (event.defaultPrevented || this.dialogs.isOpen || this.popup.isOpen || isForBrowser ||
            isForFocus) {
            return;
        }
        event.preventDefault();
        this.events.put(kEvent.key, [0, event.keyCode]);
    }
}

let page = null;

// Called by the program's loader when memory and files are there.
async function startPage() {
    await Promise.all([document.fonts.load('11px "Editor Sans"'),
        document.fonts.load('bold 11px "Editor Sans"')]);
    page = new Page();
    await page.skin.load(kSkin);
    document.getElementById('loading').remove();
    callMain([]);
}

var Module = {
    noInitialRun: true,
    wasmBinary: Uint8Array.from(atob(kProgram), (letter) => letter.charCodeAt(0)),
    onRuntimeInitialized: () => startPage(),
    // Whatever comes to the terminal of a program goes to the browser's own.
    print: (text) => console.log(text),
    printErr: (text) => console.error(text),
};

// Where the page is served it works without a network too, and can be installed.
if (window.location.protocol.startsWith('http')) {
    const link = document.head.appendChild(document.createElement('link'));
    link.rel = 'manifest';
    link.href = 'manifest.webmanifest';
    if ('serviceWorker' in navigator) {
        navigator.serviceWorker.register('offline.js').catch(() => {});
    }
}
