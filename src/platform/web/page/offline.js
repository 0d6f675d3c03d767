// Where the page is served: keeps it, so that it opens without a network too.
'use strict';

const kStore = 'terrain-editor-@VERSION@';
const kParts = ['@PAGE@', 'manifest.webmanifest', 'icon.svg'];

self.addEventListener('install', (event) => {
    event.waitUntil(caches.open(kStore).then((store) => store.addAll(kParts)));
    self.skipWaiting();
});

self.addEventListener('activate', (event) => {
    event.waitUntil(caches.keys().then((names) =>
        Promise.all(names.filter((name) => name !== kStore).map((name) => caches.delete(name)))));
});

self.addEventListener('fetch', (event) => {
    event.respondWith(caches.match(event.request).then((kept) => kept || fetch(event.request)));
});
