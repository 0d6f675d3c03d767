"""Pictures as files, and what a saved map holds."""
import struct
import subprocess
import zlib


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def gray_png(width, rows, *more, bits=8, has_alpha=False):
    """Rows of bytes, so many bits a sample; more: chunks, a kind and its data."""
    head = struct.pack(">IIBBBBB", width, len(rows), bits, 4 if has_alpha else 0, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + bytes(row) for row in rows))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + b"".join(chunk(*one) for one in more)
            + chunk(b"IDAT", data) + chunk(b"IEND", b""))


def gray_profile(gamma):
    """A colour profile for greys by which a browser would show others."""
    curve = b"curv\0\0\0\0" + struct.pack(">IH", 1, round(gamma * 256)) + b"\0\0"
    white = b"XYZ \0\0\0\0" + struct.pack(">III", 0xF6D6, 0x10000, 0xD32D)
    name = b"desc\0\0\0\0" + struct.pack(">I", 2) + b"g\0" + bytes(78)
    right = b"text\0\0\0\0none\0\0\0\0"
    parts = [(b"desc", name + b"\0" * (-len(name) % 4)), (b"cprt", right), (b"wtpt", white), (b"kTRC", curve)]
    table, body, at = struct.pack(">I", len(parts)), b"", 128 + 4 + 12 * len(parts)
    for kind, data in parts:
        table += kind + struct.pack(">II", at + len(body), len(data))
        body += data
    size = 128 + len(table) + len(body)
    head = struct.pack(">I4sI4s4s4s", size, b"none", 0x02100000, b"mntr", b"GRAY", b"XYZ ")
    head += struct.pack(">6H4s", 2020, 1, 1, 0, 0, 0, b"acsp") + bytes(28) + struct.pack(
        ">III", 0xF6D6, 0x10000, 0xD32D)
    return head + bytes(128 - len(head)) + table + body


def jpeg(path, width, rows):
    """By another program, in its best quality."""
    subprocess.run(["convert", "-size", f"{width}x{len(rows)}", "-depth", "8", "gray:-", "-quality", "100",
                    f"jpeg:{path}"], input=b"".join(map(bytes, rows)), check=True)


def heights(path):
    """Rows of a saved map from the top of its picture down."""
    data = path.read_bytes()
    start, width, height = struct.unpack_from("<I", data, 10)[0], *struct.unpack_from("<ii", data, 18)
    step = (width + 3) // 4 * 4
    return [data[start + y * step:start + y * step + width] for y in reversed(range(height))]
