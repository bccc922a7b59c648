; Shows the level of the sample project, with its hero walking in front of the house.
;
; The Makefile beside this file exports the graphics to gfx/ and makes game.nex of them, for a ZX Spectrum Next or an
; emulator of one. What is in each file of gfx/ is told in docs/file-formats.md.

        .equ    TILEMAP, 0x6000         ; where the cells of the screen are, 40 x 32 of two bytes
        .equ    SCREEN_WIDTH, 40
        .equ    SCREEN_HEIGHT, 32
        .equ    LEVEL_TOP, SCREEN_HEIGHT - HILL_HEIGHT  ; the level stands at the bottom, below a high sky

        .text
; ---------------------------------------------------------------- the header of a .nex file, 512 bytes
header:
        .ascii  "NextV1.2"
        .byte   0                       ; 768 KiB of memory are enough
        .byte   2                       ; banks of 16 KiB that follow
        .byte   0                       ; no loading screen
        .byte   0                       ; the border is black
        .word   stack
        .word   start
        .word   0                       ; no other files
        .byte   0, 0, 1, 0, 0, 1        ; the banks are 2 and 5; in the file 5 comes first
        . = header + 512

; ---------------------------------------------------------------- bank 5, at 0x4000: what the tilemap sees
bank5:
tiles:  .incbin "gfx/hill.nxt"
        .include "gfx/hill.s"           ; the map, as text: it brings HILL_WIDTH and HILL_HEIGHT along
        . = bank5 + 0x4000              ; from TILEMAP on there are zeros, which are empty cells

; ---------------------------------------------------------------- bank 2, at 0x8000: the program
start:
        di
        nextreg 0x68, 0x80              ; no ULA
        nextreg 0x4A, 0                 ; black where nothing is drawn
        nextreg 0x15, 0x03              ; sprites, on the border as well

        ld      hl, level_palette
        nextreg 0x43, 0x30              ; to the tilemap's first palette
        ld      b, 0                    ; 256 entries
        call    send_palette
        ld      hl, cast_palette
        nextreg 0x43, 0x20              ; to the sprites' first palette
        ld      b, 16
        call    send_palette
        nextreg 0x4B, 0                 ; the colour of sprites that is clear

        call    show_map
        call    send_patterns

; The hero is a record of the placed sprites (IX), which names an animation of the bank (IY).
        ld      ix, hill_sprites_hero
        ld      l, (ix + 6)             ; the number of the animation
        ld      h, (ix + 7)
        add     hl, hl
        ld      de, cast + 2            ; where each of them begins, counted from cast
        add     hl, de
        ld      e, (hl)
        inc     hl
        ld      d, (hl)
        ld      iy, cast
        add     iy, de
        ld      c, 0                    ; the frame

next_frame:
        call    show_hero
        ld      b, (iy + 4)             ; so many screens of 20 ms each
wait:   call    wait_for_screen
        djnz    wait
        inc     c
        ld      a, c
        cp      (iy + 2)                ; the number of frames
        jr      c, next_frame
        ld      c, 0
        jr      next_frame

; Sends B entries of two bytes from HL on to the palette that was chosen.
send_palette:
        nextreg 0x40, 0                 ; from entry 0 on
send_entry:
        ld      a, (hl)
        inc     hl
        nextreg 0x44, a                 ; RRRGGGBB
        ld      a, (hl)
        inc     hl
        nextreg 0x44, a                 ; P000000B
        djnz    send_entry
        ret

; Copies the left part of the map to the bottom of the screen and shows the tilemap.
show_map:
        ld      hl, hill
        ld      de, TILEMAP + LEVEL_TOP * SCREEN_WIDTH * 2
        ld      a, HILL_HEIGHT
show_row:
        ld      bc, SCREEN_WIDTH * 2
        ldir
        ld      bc, (HILL_WIDTH - SCREEN_WIDTH) * 2
        add     hl, bc
        dec     a
        jr      nz, show_row
        nextreg 0x6E, (TILEMAP - 0x4000) / 256
        nextreg 0x6F, 0                 ; the tiles are at 0x4000
        nextreg 0x2F, 0                 ; no scrolling
        nextreg 0x30, 0
        nextreg 0x31, 0
        nextreg 0x6B, 0x82              ; 40 x 32 cells of 512 tiles
        ret

; Sends the sprites' patterns, from slot 0 on.
send_patterns:
        ld      bc, 0x303B
        xor     a
        out     (c), a
        ld      hl, patterns
        ld      de, patterns_end - patterns
send_byte:
        ld      a, (hl)
        out     (0x5B), a
        inc     hl
        dec     de
        ld      a, d
        or      e
        jr      nz, send_byte
        ret

; Shows frame C of the animation IY, of one sprite a frame, as sprite 0 at the place of the record IX.
show_hero:
        push    iy
        pop     hl
        ld      de, 6                   ; cells of two bytes begin here
        add     hl, de
        ld      b, 0
        add     hl, bc
        add     hl, bc
        ld      e, (hl)                 ; the pattern
        nextreg 0x34, 0
        ld      a, (ix + 0)
        nextreg 0x35, a                 ; x
        ld      a, (ix + 2)
        add     a, LEVEL_TOP * 8
        nextreg 0x36, a                 ; y
        ld      a, (ix + 1)
        and     1
        ld      d, a
        ld      a, (ix + 5)             ; palette offset, mirror, flip, rotate, as the hardware has them
        and     0xFE
        or      d
        nextreg 0x37, a                 ; with bit 8 of x
        ld      a, e
        srl     a
        or      0xC0                    ; visible, and there is a fifth attribute
        nextreg 0x38, a                 ; the slot of two patterns of 4 bits
        ld      a, e
        and     1
        rrca
        rrca
        or      0x80                    ; 4 bits
        nextreg 0x39, a                 ; which of the two
        ret

; Waits until the display has come to its end once more.
wait_for_screen:
        push    bc
        ld      bc, 0x243B
        ld      a, 0x1F                 ; the lower byte of the line that is drawn
        out     (c), a
        inc     b
1:      in      a, (c)
        cp      200
        jr      z, 1b
2:      in      a, (c)
        cp      200
        jr      nz, 2b
        pop     bc
        ret

level_palette:
        .incbin "gfx/level.pal"
cast_palette:
        .incbin "gfx/cast.nxp"
patterns:
        .incbin "gfx/cast.spr"
patterns_end:
        .include "gfx/cast.s"
        .include "gfx/hill-sprites.s"

        . = bank5 + 0x8000
stack:
