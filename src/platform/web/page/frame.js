// What stands around and over the windows: what is dragged, scroll bars, the open menu or list.
'use strict';

// Follows the pointer from a press on: begin gives what is told how far it went, in CSS pixels.
function drag(node, begin) {
    node.addEventListener('pointerdown', (start) => {
        const follow = start.button === 0 ? begin(start) : null;
        if (follow === null) {
            return;
        }
        start.preventDefault();
        node.setPointerCapture(start.pointerId);
        const move = (event) => follow(event.clientX - start.clientX, event.clientY - start.clientY);
        const end = (event) => {
            node.removeEventListener('pointermove', move);
            node.removeEventListener('pointerup', end);
            node.removeEventListener('pointercancel', end);
            follow(event.clientX - start.clientX, event.clientY - start.clientY, true);
        };
        node.addEventListener('pointermove', move);
        node.addEventListener('pointerup', end);
        node.addEventListener('pointercancel', end);
    });
}

// The upright scroll bar of a window with a frame.
class PageScrollBar {
    constructor(window, item, name) {
        this.window = window;
        this.item = item;
        this.isDragged = false;
        this.node = window.client.appendChild(element('div', 'scroll-bar'));
        this.thumb = this.node.appendChild(element('div', 'thumb'));
        this.node.setAttribute('role', 'scrollbar');
        this.node.setAttribute('aria-orientation', 'vertical');
        this.node.setAttribute('aria-label', name);
        this.node.addEventListener('pointerdown', (event) => {
            if (event.target === this.node && event.button === 0) {
                const isAbove = event.clientY < this.thumb.getBoundingClientRect().top;
                this.step(isAbove ? -this.page : this.page);
            }
        });
        this.node.addEventListener('wheel', (event) => {
            event.preventDefault();
            this.step(Math.sign(event.deltaY));
        }, {passive: false});
        drag(this.thumb, () => {
            const start = this.value;
            const room = this.node.clientHeight - this.thumb.offsetHeight;
            this.isDragged = true;
            return (x, y, isOver = false) => {
                this.isDragged = !isOver;
                this.take(start + (room > 0 ? y / room * (this.most - this.least) : 0), !isOver);
            };
        });
    }

    set(left, top, width, height, least, most, page, value) {
        const ratio = this.window.page.ratio();
        Object.assign(this.node.style, {
            left: `${left / ratio}px`, top: `${top / ratio}px`, width: `${width / ratio}px`,
            height: `${height / ratio}px`,
        });
        Object.assign(this, {least, most, page});
        this.length = height / ratio;
        if (!this.isDragged) {
            this.value = value;
        }
        this.show();
    }

    show() {
        const range = Math.max(1, this.most - this.least);
        const unit = this.window.size.scale / this.window.page.ratio();
        const inside = this.length - 2;
        const length = Math.max(24 * unit, inside * this.page / (range + this.page));
        this.thumb.style.height = `${length}px`;
        this.thumb.style.top = `${(inside - length) * (this.value - this.least) / range}px`;
        this.node.setAttribute('aria-valuemin', this.least);
        this.node.setAttribute('aria-valuemax', this.most);
        this.node.setAttribute('aria-valuenow', this.value);
    }

    step(by) {
        this.take(this.value + by, false);
    }

    take(value, isDragged) {
        this.value = Math.round(Math.min(Math.max(value, this.least), this.most));
        this.show();
        this.window.put(kEvent.scroll, this.item, this.value, isDragged ? 1 : 0);
    }
}

// The one menu or list that is open; a press elsewhere closes it and does nothing else.
class PagePopup {
    constructor(root) {
        this.ground = root.appendChild(element('div', 'popup-ground'));
        this.ground.hidden = true;
        this.ground.addEventListener('pointerdown', (event) => {
            if (event.target === this.ground) {
                event.preventDefault();
                this.close();
            }
        });
        this.ground.addEventListener('keydown', (event) => this.hearKey(event));
    }

    get isOpen() {
        return !this.ground.hidden;
    }

    open(window, content, left, top) {
        this.close();
        this.ground.style.setProperty('--unit', window.root.style.getPropertyValue('--unit'));
        this.ground.hidden = false;
        this.ground.appendChild(content);
        content.style.left = `${left}px`;
        this.place(top);
        const first = content.querySelector('button.checked') || content.querySelector('button');
        if (first !== null) {
            first.focus({preventScroll: true});
        }
    }

    place(top) {
        this.ground.firstChild.style.top = `${top}px`;
    }

    close() {
        this.ground.hidden = true;
        this.ground.replaceChildren();
    }

    hearKey(event) {
        const buttons = [...this.ground.querySelectorAll('button:enabled')];
        const step = {ArrowDown: 1, ArrowUp: -1}[event.key];
        if (event.key === 'Escape') {
            this.close();
        } else if (step !== undefined && buttons.length > 0) {
            const next = buttons.indexOf(document.activeElement) + step;
            buttons[(next + buttons.length) % buttons.length].focus();
            event.preventDefault();
        }
    }
}
