// The dialogs of the program: parts of the page that take it whole until they are answered.
'use strict';

const kAnswer = {ok: 1, yes: 6, no: 7};

class PageDialogs {
    constructor(page) {
        this.page = page;
        this.count = 0;
        this.shown = [];
    }

    get isOpen() {
        return this.shown.length > 0;
    }

    // kind: message, input, color, save, open. Returns the number under which the answer comes.
    open(kind, title, text, style, color) {
        const dialog = element('dialog', kind);
        dialog.style.setProperty('--unit', this.page.unit());
        const form = dialog.appendChild(element('form'));
        form.appendChild(element('h2', '', title));
        const number = ++this.count;
        const answer = (isAccepted, value = 0, words = '') => {
            if (dialog.isConnected) {
                dialog.close();
                dialog.remove();
                this.shown = this.shown.filter((other) => other !== dialog);
                this.page.events.put(kEvent.answer, [number, isAccepted ? 1 : 0, value], words);
            }
        };
        form.addEventListener('submit', (event) => event.preventDefault());
        const makers = {
            message: this.message, input: this.input, color: this.color, save: this.save,
            open: this.chooseFile,
        };
        makers[kind].call(this, form, answer, {text, style, color});
        this.page.root.appendChild(dialog);
        this.shown.push(dialog);
        dialog.showModal();
        const first = dialog.querySelector('[data-first]');
        if (first !== null) {
            first.focus();
            if (first.select !== undefined) {
                first.select();
            }
        }
        return number;
    }

    // words: of each button its caption, and what it does; the first one is done by Enter.
    buttons(form, words) {
        const row = form.appendChild(element('div', 'buttons'));
        return words.map(([caption, act]) => {
            const button = row.appendChild(element('button', '', caption));
            button.type = 'button';
            button.addEventListener('click', act);
            return button;
        });
    }

    // Enter in a field and Escape anywhere.
    hearKeys(form, accept, cancel) {
        form.addEventListener('submit', accept);
        form.addEventListener('keydown', (event) => {
            if (event.key === 'Enter' && event.target.tagName === 'INPUT') {
                event.preventDefault();
                accept();
            }
        });
        form.parentElement.addEventListener('cancel', (event) => {
            event.preventDefault();
            cancel();
        });
    }

    field(form, caption, value, properties = {}) {
        const label = form.appendChild(element('label', '', caption));
        const field = label.appendChild(element('input'));
        Object.assign(field, {type: 'text', value, autocomplete: 'off', spellcheck: false}, properties);
        return field;
    }

    message(form, answer, {text, style}) {
        const kYesNo = 4, kStopIcon = 16, kSecondDefault = 256;
        const body = element('p', 'text', text);
        if ((style & 0x70) === kStopIcon) {
            const row = form.appendChild(element('div', 'with-icon'));
            row.appendChild(this.page.stopLight());
            row.appendChild(body);
        } else {
            form.appendChild(body);
        }
        if ((style & 7) === kYesNo) {
            const no = () => answer(true, kAnswer.no);
            const made = this.buttons(form, [['Yes', () => answer(true, kAnswer.yes)], ['No', no]]);
            made[(style & kSecondDefault) !== 0 ? 1 : 0].dataset.first = '';
            this.hearKeys(form, no, no);
        } else {
            const ok = () => answer(true, kAnswer.ok);
            this.buttons(form, [['OK', ok]])[0].dataset.first = '';
            this.hearKeys(form, ok, ok);
        }
    }

    input(form, answer, {text}) {
        const field = this.field(form, text, '');
        field.dataset.first = '';
        const accept = () => answer(true, 0, field.value);
        this.buttons(form, [['OK', accept], ['Cancel', () => answer(false)]]);
        this.hearKeys(form, accept, () => answer(false));
    }

    save(form, answer) {
        const field = this.field(form, 'Name of the file:', '', {placeholder: 'name.bmp'});
        field.dataset.first = '';
        form.appendChild(element('p', 'note', 'The browser puts it where it puts what you download.'));
        const accept = () => {
            if (field.value !== '') {
                answer(true, 0, field.value);
            }
        };
        this.buttons(form, [['Save', accept], ['Cancel', () => answer(false)]]);
        this.hearKeys(form, accept, () => answer(false));
    }

    // text: the folder in which the program finds the file. The browser's own choice of a file opens
    // at once where it may.
    chooseFile(form, answer, {text}) {
        const choice = element('input');
        choice.type = 'file';
        choice.accept = 'image/*,.bmp,.tga';
        choice.hidden = true;
        form.appendChild(choice);
        const take = async (file) => {
            if (file !== undefined && file !== null) {
                answer(true, 0, await this.page.files.take(text, file));
            }
        };
        const pick = form.appendChild(element('button', 'drop', 'Choose a picture, or drop one here'));
        pick.type = 'button';
        pick.dataset.first = '';
        pick.addEventListener('click', () => choice.click());
        choice.addEventListener('change', () => take(choice.files[0]));
        choice.addEventListener('cancel', () => answer(false));
        form.addEventListener('dragover', (event) => event.preventDefault());
        form.addEventListener('drop', (event) => {
            event.preventDefault();
            take(event.dataTransfer.files[0]);
        });
        this.buttons(form, [['Cancel', () => answer(false)]]);
        this.hearKeys(form, () => {}, () => answer(false));
        if (navigator.userActivation === undefined || navigator.userActivation.isActive) {
            choice.click();
        }
    }

    color(form, answer, {color}) {
        const hexOf = (parts) => '#' + parts.map((n) => n.toString(16).padStart(2, '0')).join('');
        let parts = [color & 255, (color >> 8) & 255, (color >> 16) & 255];
        const row = form.appendChild(element('div', 'color-row'));
        const well = row.appendChild(element('input', 'well'));
        well.type = 'color';
        well.setAttribute('aria-label', 'Colour');
        const fields = row.appendChild(element('div', 'fields'));
        const numbers = ['Red:', 'Green:', 'Blue:'].map((caption) => {
            const field = this.field(fields, caption, '', {inputMode: 'numeric', maxLength: 3});
            field.addEventListener('input', () => {
                take(numbers.map((one) => Math.min(255, Number.parseInt(one.value, 10) || 0)), field);
            });
            return field;
        });
        const name = this.field(fields, 'HTML:', '', {maxLength: 7});
        numbers[0].dataset.first = '';
        const take = (taken, source) => {
            parts = taken;
            well.value = hexOf(parts);
            numbers.forEach((field, i) => {
                if (!numbers.includes(source)) {
                    field.value = parts[i];
                }
            });
            if (source !== name) {
                name.value = hexOf(parts);
            }
        };
        const takeHex = (text, source) => {
            const found = /^#?([0-9a-f]{2})([0-9a-f]{2})([0-9a-f]{2})$/i.exec(text);
            if (found !== null) {
                take(found.slice(1).map((two) => Number.parseInt(two, 16)), source);
            }
        };
        well.addEventListener('input', () => takeHex(well.value, well));
        name.addEventListener('input', () => takeHex(name.value, name));
        take(parts, null);
        const accept = () => answer(true, parts[0] + (parts[1] << 8) + (parts[2] << 16));
        this.buttons(form, [['OK', accept], ['Cancel', () => answer(false)]]);
        this.hearKeys(form, accept, () => answer(false));
    }
}
