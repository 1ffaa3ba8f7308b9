// arm64: keeps every register that can hold an argument while the method is looked up, and goes on to it as
// if the caller had called it. x8 has the place for a structure. Frames are described, as an exception may
// come out of the look-up.
    .text

    .globl kestruneMessage
    .type kestruneMessage, %function
kestruneMessage:
    .cfi_startproc
    cbz x0, zero
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov x29, sp
    .cfi_def_cfa_register x29
    stp x0, x1, [x29, #16]
    stp x2, x3, [x29, #32]
    stp x4, x5, [x29, #48]
    stp x6, x7, [x29, #64]
    str x8, [x29, #80]
    stp q0, q1, [x29, #96]
    stp q2, q3, [x29, #128]
    stp q4, q5, [x29, #160]
    stp q6, q7, [x29, #192]
    bl objc_msg_lookup
    mov x16, x0
    ldp x0, x1, [x29, #16]
    ldp x2, x3, [x29, #32]
    ldp x4, x5, [x29, #48]
    ldp x6, x7, [x29, #64]
    ldr x8, [x29, #80]
    ldp q0, q1, [x29, #96]
    ldp q2, q3, [x29, #128]
    ldp q4, q5, [x29, #160]
    ldp q6, q7, [x29, #192]
    .cfi_def_cfa sp, 224
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    br x16
// A message to nil. A structure in memory stays as it is.
zero:
    mov x1, #0
    movi v0.2d, #0
    movi v1.2d, #0
    movi v2.2d, #0
    movi v3.2d, #0
    ret
    .cfi_endproc
    .size kestruneMessage, . - kestruneMessage

    .section .note.GNU-stack, "", %progbits
