// A window of the program on the page: its picture, its frame, what assistive technology finds.
'use strict';

const kPointer = {move: 0, press: 1, secondPress: 2, release: 3, leave: 4, wheel: 5};
// The program's buttons by the browser's numbers; the same are the bits of those that are held.
const kButtons = [1, 4, 2];
const kPart = {text: 1, list: 2, picture: 3, button: 4, checkBox: 5, radioButton: 6, slider: 7};

// A second press is one of a double click if it comes so soon, and so near.
const kDoubleMilliseconds = 500;
const kDoublePixels = 5;

function element(kind, className = '', text = '') {
    const made = document.createElement(kind);
    if (className !== '') {
        made.className = className;
    }
    if (text !== '') {
        made.textContent = text;
    }
    return made;
}

// A caption as it shows: "&" stands before an access key, "&&" for itself.
function shownCaption(caption) {
    return caption.replace(/&(.)/g, '$1');
}

class PageWindow {
    // frame: 0 none, 1 of a fixed size, 2 to be sized by hand.
    constructor(page, number, frame, title) {
        this.page = page;
        this.number = number;
        this.root = element('section', frame !== 0 ? 'window framed' : 'window');
        this.root.hidden = true;
        this.title = null;
        this.menuBar = null;
        this.menus = new Map();
        this.bars = new Map();
        this.parts = new Map();
        this.lastPress = null;
        this.size = {left: 0, top: 0, width: 0, height: 0, scale: 1};
        if (frame !== 0) {
            this.makeFrame();
        }
        if (frame === 2) {
            this.makeGrip();
        }
        this.client = this.root.appendChild(element('div', 'client'));
        this.canvas = this.client.appendChild(element('canvas'));
        this.canvas.setAttribute('aria-hidden', 'true');
        this.context = this.canvas.getContext('2d', {alpha: false});
        this.tree = this.client.appendChild(element('div', 'parts'));
        this.setTitle(title);
        this.hearPointer();
        page.root.appendChild(this.root);
    }

    put(kind, ...numbers) {
        this.page.events.put(kind, [this.number, ...numbers]);
    }

    remove() {
        this.root.remove();
        this.page.dropChip(this.number);
    }

    setTitle(title) {
        this.caption = title;
        this.root.setAttribute('aria-label', title);
        if (this.title !== null) {
            this.title.textContent = title;
        }
    }

    place(left, top, width, height, scale) {
        const ratio = this.page.ratio();
        const isResized = this.canvas.width !== width || this.canvas.height !== height;
        this.size = {left, top, width, height, scale};
        this.root.style.left = `${left / ratio}px`;
        this.root.style.top = `${top / ratio}px`;
        this.root.style.setProperty('--unit', `${scale / ratio}px`);
        this.client.style.width = `${width / ratio}px`;
        this.client.style.height = `${height / ratio}px`;
        if (isResized) {
            this.canvas.width = width;
            this.canvas.height = height;
        }
        this.canvas.style.width = `${width / ratio}px`;
        this.canvas.style.height = `${height / ratio}px`;
        if (this.title !== null) {
            const head = Math.round(24 * scale);
            this.titleBar.style.height = `${head / ratio}px`;
            if (this.menuBar !== null) {
                this.menuBar.style.height = `${(Math.round(46 * scale) - head) / ratio}px`;
            }
        }
    }

    show(isShown) {
        this.root.hidden = !isShown;
        this.page.dropChip(this.number);
    }

    raise() {
        this.root.style.zIndex = ++this.page.topmost;
    }

    minimize() {
        this.page.addChip(this);
    }

    setCursor(picture, face, width, height) {
        if (picture === 0) {
            this.canvas.style.cursor = '';
            return;
        }
        const ratio = this.page.ratio();
        const image = element('canvas');
        image.width = Math.round(width / ratio);
        image.height = Math.round(height / ratio);
        image.getContext('2d').drawImage(this.page.skin.face(picture, face, width, height), 0, 0,
            image.width, image.height);
        this.canvas.style.cursor =
            `url(${image.toDataURL()}) ${image.width >> 1} ${image.height >> 1}, grabbing`;
    }

    // A place of the pointer in device pixels of the inside.
    placeOf(event) {
        const ratio = this.page.ratio();
        const corner = this.canvas.getBoundingClientRect();
        return [(event.clientX - corner.left) * ratio, (event.clientY - corner.top) * ratio];
    }

    // A second finger is not heard.
    pointer(kind, event, button = 0, notches = 0) {
        if (event.isPrimary === false) {
            return;
        }
        this.put(kEvent.pointer, kind, ...this.placeOf(event), button, notches);
    }

    hearPointer() {
        const canvas = this.canvas;
        canvas.addEventListener('pointerdown', (event) => {
            event.preventDefault();
            if (document.activeElement !== null) {
                document.activeElement.blur();
            }
            canvas.setPointerCapture(event.pointerId);
            this.pointer(this.kindOfPress(event), event, kButtons[event.button] || 0);
        });
        canvas.addEventListener('pointermove', (event) => {
            if (event.button >= 0) {  // a second button went down or up
                const button = kButtons[event.button] || 0;
                const isHeld = (event.buttons & button) !== 0;
                this.pointer(isHeld ? kPointer.press : kPointer.release, event, button);
            } else {
                this.pointer(kPointer.move, event);
            }
        });
        canvas.addEventListener('pointerup', (event) =>
            this.pointer(kPointer.release, event, kButtons[event.button] || 0));
        canvas.addEventListener('pointercancel', (event) =>
            this.pointer(kPointer.release, event, kButtons[0]));
        canvas.addEventListener('pointerenter', (event) => this.pointer(kPointer.move, event));
        canvas.addEventListener('pointerleave', (event) => this.pointer(kPointer.leave, event));
        canvas.addEventListener('contextmenu', (event) => event.preventDefault());
        canvas.addEventListener('wheel', (event) => {
            event.preventDefault();
            const kStepsOfNotch = [100, 3, 1];  // by the browser's kinds of steps
            this.pointer(kPointer.wheel, event, 0, event.deltaY / kStepsOfNotch[event.deltaMode]);
        }, {passive: false});
    }

    kindOfPress(event) {
        const last = this.lastPress;
        const isSecond = last !== null && last.button === event.button &&
            event.timeStamp - last.timeStamp < kDoubleMilliseconds &&
            Math.abs(event.clientX - last.clientX) <= kDoublePixels &&
            Math.abs(event.clientY - last.clientY) <= kDoublePixels;
        this.lastPress = isSecond ? null : event;
        return isSecond ? kPointer.secondPress : kPointer.press;
    }

    makeFrame() {
        this.titleBar = this.root.appendChild(element('header', 'title-bar'));
        this.title = this.titleBar.appendChild(element('span', 'title'));
        const close = this.titleBar.appendChild(element('button', 'close', '\u00d7'));
        close.setAttribute('aria-label', 'Close');
        close.addEventListener('click', () => this.put(kEvent.close));
        drag(this.titleBar, (start) => {
            if (start.target === close) {
                return null;
            }
            this.put(kEvent.activate);
            const {left, top} = this.size;
            return (x, y) => this.put(kEvent.moveFrame, left + x * this.page.ratio(),
                top + y * this.page.ratio());
        });
    }

    makeGrip() {
        const grip = this.root.appendChild(element('div', 'grip'));
        drag(grip, () => {
            const {width, height} = this.size;
            return (x, y) => this.put(kEvent.frameSize, width + x * this.page.ratio(),
                height + y * this.page.ratio());
        });
    }

    setMenuItem(item, menu, caption, isEnabled, isChecked) {
        let entry = this.menus.get(item);
        if (entry === undefined) {
            entry = menu < 0 ? this.makeMenu() : this.makeEntry(this.menus.get(menu), item, caption);
            this.menus.set(item, entry);
        }
        if (entry.button !== null) {
            entry.button.textContent = shownCaption(caption);
            entry.button.disabled = !isEnabled;
            entry.button.classList.toggle('checked', isChecked);
        }
    }

    makeMenu() {
        if (this.menuBar === null) {
            this.menuBar = element('div', 'menu-bar');
            this.menuBar.setAttribute('role', 'menubar');
            this.root.insertBefore(this.menuBar, this.client);
        }
        const button = this.menuBar.appendChild(element('button'));
        const entries = element('div', 'popup');
        entries.setAttribute('role', 'menu');
        button.setAttribute('role', 'menuitem');
        button.setAttribute('aria-haspopup', 'menu');
        button.addEventListener('click', () => {
            const place = button.getBoundingClientRect();
            this.put(kEvent.activate);
            this.page.popup.open(this, entries, place.left, place.bottom);
        });
        return {button, entries};
    }

    makeEntry(menu, item, caption) {
        if (caption === '-') {
            menu.entries.appendChild(element('hr'));
            return {button: null};
        }
        const button = menu.entries.appendChild(element('button'));
        button.setAttribute('role', 'menuitem');
        button.addEventListener('click', () => {
            this.page.popup.close();
            this.put(kEvent.menuItem, item);
        });
        return {button};
    }

    setScrollBar(item, left, top, width, height, least, most, step, value, name) {
        let bar = this.bars.get(item);
        if (bar === undefined) {
            bar = new PageScrollBar(this, item, name);
            this.bars.set(item, bar);
        }
        bar.set(left, top, width, height, least, most, step, value);
    }

    openList(item, entries, chosen, left, top, width, height) {
        const list = element('div', 'popup list');
        list.setAttribute('role', 'listbox');
        entries.split('\n').slice(0, -1).forEach((text, number) => {
            const entry = list.appendChild(element('button', number === chosen ? 'checked' : '', text));
            entry.setAttribute('role', 'option');
            entry.setAttribute('aria-selected', String(number === chosen));
            entry.addEventListener('click', () => {
                this.page.popup.close();
                this.put(kEvent.listEntry, item, number);
            });
        });
        const ratio = this.page.ratio();
        const corner = this.canvas.getBoundingClientRect();
        list.style.minWidth = `${width / ratio}px`;
        this.page.popup.open(this, list, corner.left + left / ratio, corner.top + top / ratio);
        return Math.round(list.getBoundingClientRect().height * ratio);
    }

    placeList(top) {
        const corner = this.canvas.getBoundingClientRect();
        this.page.popup.place(corner.top + top / this.page.ratio());
    }

    // kind, flags: as page.h has them. The element is made once.
    tellPart(item, kind, name, value, flags, left, top, width, height, least, most) {
        let part = this.parts.get(item);
        if (part === undefined || part.kind !== kind) {
            part = {kind, element: this.makePart(item, kind, (flags & 8) !== 0)};
            this.parts.set(item, part);
            this.putInOrder(item, part.element);
        }
        const node = part.element;
        const ratio = this.page.ratio();
        node.hidden = (flags & 4) !== 0 || width <= 0 || height <= 0;
        Object.assign(node.style, {
            left: `${left / ratio}px`, top: `${top / ratio}px`, width: `${width / ratio}px`,
            height: `${height / ratio}px`,
        });
        if ('disabled' in node) {
            node.disabled = (flags & 2) !== 0;
        }
        if (kind === kPart.text) {
            node.textContent = name;
            return;
        }
        node.setAttribute('aria-label', name);
        const isOn = String((flags & 1) !== 0);
        if (kind === kPart.button) {
            node.setAttribute('aria-pressed', isOn);
        } else if (kind === kPart.checkBox || kind === kPart.radioButton) {
            node.setAttribute('aria-checked', isOn);
        } else if (kind === kPart.list) {
            node.textContent = value;
        } else if (kind === kPart.slider) {
            Object.assign(node, {min: least, max: most, value});
        }
    }

    makePart(item, kind, isPressable) {
        const kTags = {[kPart.text]: 'span', [kPart.picture]: 'div', [kPart.slider]: 'input'};
        const kRoles = {
            [kPart.list]: 'combobox', [kPart.picture]: 'img', [kPart.checkBox]: 'checkbox',
            [kPart.radioButton]: 'radio',
        };
        const node = element(kind === kPart.text && isPressable ? 'button' : kTags[kind] || 'button');
        if (kRoles[kind] !== undefined) {
            node.setAttribute('role', kRoles[kind]);
        }
        if (kind === kPart.slider) {
            Object.assign(node, {type: 'range', step: 1});
            node.addEventListener('input', () => this.put(kEvent.setPart, item, Number(node.value)));
        } else if (node.tagName === 'BUTTON') {
            node.addEventListener('click', () => this.put(kEvent.pressPart, item));
        }
        return node;
    }

    putInOrder(item, node) {
        node.dataset.item = item;
        const later = [...this.tree.children].find((other) => Number(other.dataset.item) > item);
        this.tree.insertBefore(node, later || null);
    }
}
