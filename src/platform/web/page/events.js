// What waits for the program: events in their order, and its one sleep.
'use strict';

const kEvent = {
    pointer: 1, key: 2, close: 3, resize: 4, activate: 5, menuItem: 6, scroll: 7, frameSize: 8,
    listEntry: 9, pressPart: 10, setPart: 11, answer: 12, picture: 13, restore: 14,
    moveFrame: 15,
};

class PageEvents {
    constructor() {
        this.waiting = [];
        this.text = '';  // of the event that was taken last
        this.wakeUp = null;
        this.timer = 0;
        // A message comes back sooner than the least timeout of a browser, and behind its painting.
        this.channel = new MessageChannel();
        this.channel.port1.onmessage = () => this.wake();
    }

    // kind of kEvent; numbers as page.h has them.
    put(kind, numbers, text = '') {
        this.waiting.push({kind, numbers, text});
        this.wake();
    }

    take() {
        const event = this.waiting.shift() || null;
        if (event !== null) {
            this.text = event.text;
        }
        return event;
    }

    wait(milliseconds, wakeUp) {
        this.wakeUp = wakeUp;
        if (this.waiting.length > 0 || (milliseconds >= 0 && milliseconds < 1)) {
            this.channel.port2.postMessage(0);
        } else if (milliseconds > 0) {
            this.timer = setTimeout(() => this.wake(), milliseconds);
        }
    }

    wake() {
        const wakeUp = this.wakeUp;
        this.wakeUp = null;
        clearTimeout(this.timer);
        if (wakeUp !== null) {
            wakeUp();
        }
    }
}
